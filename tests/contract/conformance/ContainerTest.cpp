#include <limits>

#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "tests/contract/conformance/Asked.h"

namespace conformance {
namespace {

std::vector<std::int32_t> Identifiers(const orvik::ITestContainer& container) {
  std::vector<std::int32_t> identifiers;
  const auto walk = container.NewEnum();
  while (const auto child = walk->Next()) identifiers.push_back(child->ID());
  return identifiers;
}

class Container : public EveryPlugIn {};
FOR_EVERY_PLUG_IN(Container);

TEST_P(Container, OfTheCatalogueCanBeWalkedAndSearched) {
  const auto tests = library_.PlugIn()->Tests();
  ASSERT_GT(tests->Count(), 0);
  EXPECT_EQ(Identifiers(*tests).size(), static_cast<std::size_t>(tests->Count()));
  EXPECT_EQ(tests->FindElement(GetParam().testId)->TestID(), GetParam().testId);
  EXPECT_FALSE(tests->FindElement(-4711));
}

TEST_P(Container, GivesNothingOutsideItsBounds) {
  const auto tests = library_.PlugIn()->Tests();
  for (const auto index : {0, -1, tests->Count() + 1, std::numeric_limits<std::int32_t>::max(),
                           std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { EXPECT_FALSE(tests->item(index)); })) << index;
  }
}

TEST_P(Container, RaisesOnlyHostErrorsForWrongArguments) {
  const auto tests = library_.PlugIn()->Tests();
  const auto before = Identifiers(*tests);
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { tests->Add(nullptr, {}, {}); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { tests->Add(library_.NewTest(), std::int32_t{-1}, {}); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { tests->Add(library_.NewTest(), {}, "no identifier"); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { tests->Remove(nullptr); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { tests->Remove(library_.NewTest()); }));
  EXPECT_EQ(Identifiers(*tests), before);
}

TEST_F(KeldPlugInLoaded, RefusesToCopyOrSaveBeyondAThousandLevels) {
  const auto newGroup = [this] { return library_.New<orvik::ITestContainer>("orvikKELD.CKELDSequence"); };
  auto outermost = newGroup();
  for (int level = 0; level < 3'000; ++level) {
    const auto above = newGroup();
    above->Add(orvik::As<orvik::ITestElement>(outermost), {}, {});
    outermost = above;
  }
  const auto element = orvik::As<orvik::ITestElement>(outermost);
  EXPECT_NO_THROW(EXPECT_FALSE(element->Clone()));
  EXPECT_NO_THROW(EXPECT_FALSE(element->Save(library_.NewNode())));
  EXPECT_FALSE(outermost->FindElement(-1));
}

TEST_F(KeldPlugInLoaded, ChildrenOutliveTheirGroup) {
  auto group = library_.NewTest(400);
  const auto child = orvik::As<orvik::ITestContainer>(group)->item(1);
  const std::weak_ptr<orvik::ITestElement> watched = group;
  group.reset();
  EXPECT_TRUE(watched.expired());
  EXPECT_EQ(child->TestID(), 410);
  EXPECT_FALSE(child->Parent());
}

}  // namespace
}  // namespace conformance
