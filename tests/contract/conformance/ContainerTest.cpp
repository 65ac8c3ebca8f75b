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

class Sequence : public KeldPlugInLoaded {
 protected:
  std::shared_ptr<orvik::ITestElement> Child(std::int32_t id) {
    auto element = library_.NewTest(210);
    element->SetID(id);
    return element;
  }
  std::shared_ptr<orvik::ITestContainer> NewGroup() {
    return library_.New<orvik::ITestContainer>("orvikKELD.CKELDSequence");
  }
};

TEST_F(Sequence, IsAnElementAndAContainer) {
  const auto group = library_.NewTest(400);
  const auto container = orvik::As<orvik::ITestContainer>(group);
  ASSERT_TRUE(container);
  EXPECT_EQ(Identifiers(*container), (std::vector<std::int32_t>{410, 420}));
  EXPECT_EQ(container->item(1)->Parent(), group);
  EXPECT_EQ(container->FindElement(420), container->item(2));
  EXPECT_FALSE(orvik::As<orvik::ITestContainer>(library_.NewTest(410)));
}

TEST_F(Sequence, AddsAndRemovesChildrenInOrder) {
  const auto group = NewGroup();
  group->Add(Child(1), {}, {});
  group->Add(Child(2), {}, {});
  group->Add(Child(3), std::int32_t{2}, {});
  group->Add(Child(4), {}, std::int32_t{1});
  EXPECT_EQ(Identifiers(*group), (std::vector<std::int32_t>{1, 4, 3, 2}));
  EXPECT_EQ(group->item(2)->Parent(), orvik::As<orvik::ITestElement>(group));
  const auto walk = group->NewEnum();
  walk->Next();
  group->Remove(group->item(2));
  EXPECT_EQ(walk->Next()->ID(), 3) << "a child removed during the walk is skipped";
}

TEST_F(Sequence, LogsWhatItCannotAdd) {
  const auto group = NewGroup();
  EXPECT_NO_THROW(group->Add(nullptr, {}, {}));
  EXPECT_NO_THROW(group->Add(orvik::As<orvik::ITestElement>(group), {}, {}));
  EXPECT_EQ(group->Count(), 0);
  EXPECT_EQ(library_.ErrorLines().size(), 2U);
}

TEST_F(Sequence, ClonesAndSavesItsChildren) {
  const auto group = library_.NewTest(400);
  const auto copy = group->Clone();
  const auto copied = orvik::As<orvik::ITestContainer>(copy);
  ASSERT_TRUE(copied);
  EXPECT_EQ(Identifiers(*copied), (std::vector<std::int32_t>{410, 420}));
  EXPECT_EQ(copied->item(1)->Parent(), copy);
  copied->Remove(copied->item(1));
  EXPECT_EQ(orvik::As<orvik::ITestContainer>(group)->Count(), 2);

  const auto loaded = NewGroup();
  orvik::As<orvik::ITestElement>(loaded)->Load(group->Save(library_.NewNode()), nullptr);
  EXPECT_EQ(Identifiers(*loaded), (std::vector<std::int32_t>{410, 420}));
  EXPECT_EQ(loaded->item(1)->ClassID(), "orvikKELD.CKELDTestElement");
}

TEST_F(Sequence, RefusesToCopyOrSaveBeyondAThousandLevels) {
  auto outermost = NewGroup();
  for (int level = 0; level < 3'000; ++level) {
    const auto above = NewGroup();
    above->Add(orvik::As<orvik::ITestElement>(outermost), {}, {});
    outermost = above;
  }
  const auto element = orvik::As<orvik::ITestElement>(outermost);
  EXPECT_NO_THROW(EXPECT_FALSE(element->Clone()));
  EXPECT_NO_THROW(EXPECT_FALSE(element->Save(library_.NewNode())));
  EXPECT_FALSE(outermost->FindElement(-1));
}

TEST_F(Sequence, IsOutlivedByItsChildren) {
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
