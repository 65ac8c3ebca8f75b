#include <cstring>
#include <limits>

#include "OrvikTypeLib/IPicture.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "tests/contract/conformance/Asked.h"

namespace conformance {
namespace {

constexpr std::int32_t kNoTests[] = {
    0, -1, 1, 99'999, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()};

class PlugIn : public EveryPlugIn {};
FOR_EVERY_PLUG_IN(PlugIn);

TEST_P(PlugIn, HasIdentityAndVersion) {
  const auto& plugIn = library_.PlugIn();
  EXPECT_EQ(plugIn->ID(), GetParam().plugInId);
  EXPECT_FALSE(plugIn->Name().empty());
  EXPECT_EQ(plugIn->Name().find("::"), std::string::npos) << "the name is not translated: " << plugIn->Name();
  EXPECT_FALSE(plugIn->Version().empty());
  EXPECT_EQ(plugIn->Flags(), 1);
  EXPECT_EQ(plugIn->ClassID(), library_.PlugInClass());
}

TEST_P(PlugIn, WorksBeforeInitialize) {
  const auto fresh = library_.New<orvik::IPlugIn>(library_.PlugInClass());
  EXPECT_EQ(fresh->Flags(), 0);
  EXPECT_EQ(fresh->ID(), GetParam().plugInId);
  EXPECT_EQ(fresh->Name(), "");
  ASSERT_TRUE(fresh->Tests());
  EXPECT_EQ(fresh->Tests()->Count(), 0);
  EXPECT_FALSE(fresh->CreateTest(GetParam().testId));
}

TEST_P(PlugIn, InitializeRebuildsEverything) {
  const auto& plugIn = library_.PlugIn();
  const auto before = plugIn->Tests();
  const auto count = before->Count();
  plugIn->Initialize(nullptr);
  EXPECT_NE(plugIn->Tests(), before);
  EXPECT_EQ(plugIn->Tests()->Count(), count);
  plugIn->Initialize(plugIn);
  EXPECT_EQ(plugIn->Tests()->Count(), count);
  EXPECT_TRUE(plugIn->CreateTest(GetParam().testId));
}

TEST_P(PlugIn, CreatesNothingForUnknownTests) {
  for (const auto testId : kNoTests) EXPECT_FALSE(library_.PlugIn()->CreateTest(testId)) << testId;
}

TEST_P(PlugIn, CreatesCopiesAndKeepsItsEntries) {
  const auto entry = library_.PlugIn()->Tests()->FindElement(GetParam().testId);
  const auto first = library_.NewTest();
  const auto second = library_.NewTest();
  ASSERT_TRUE(entry);
  EXPECT_NE(first, second);
  EXPECT_NE(first, entry);
  EXPECT_EQ(first->TestID(), GetParam().testId);
  EXPECT_EQ(first->PlugInID(), GetParam().plugInId);
  EXPECT_FALSE(first->Parent());
  first->SetID(77);
  EXPECT_EQ(second->ID(), entry->ID());
  EXPECT_EQ(library_.NewTest()->ID(), entry->ID());
}

TEST_P(PlugIn, HasPicturesOrNoneForAnyTestAndStyle) {
  const auto check = [&](int testId, int style) {
    std::shared_ptr<orvik::IPicture> picture;
    ASSERT_NO_THROW(picture = library_.PlugIn()->Icon(static_cast<std::int16_t>(testId),
                                                      static_cast<std::int16_t>(style)));
    if (!picture) return;
    const auto bitmap = picture->Bitmap();
    ASSERT_GT(bitmap.size(), 26U) << testId;
    EXPECT_EQ(std::memcmp(bitmap.data(), "BM", 2), 0) << testId << " is not a bitmap file";
    std::int32_t size[2];
    std::memcpy(size, bitmap.data() + 18, sizeof size);
    EXPECT_EQ(picture->Width(), size[0]) << testId;
    EXPECT_EQ(picture->Height(), std::abs(size[1])) << testId;
  };
  for (int testId = -5; testId <= 1'800; ++testId) {
    for (int style = -1; style <= 2; ++style) check(testId, style);
  }
  for (const int testId : {-32'768, 6'150, 32'700, 32'767}) {
    for (const int style : {-32'768, 0, 1, 32'767}) check(testId, style);
  }
}

TEST_P(PlugIn, ReturnsNothingForMissingParts) {
  const auto& plugIn = library_.PlugIn();
  EXPECT_NO_THROW(plugIn->ControlPanel());
  EXPECT_NO_THROW(plugIn->CreateDUTData());
  EXPECT_NO_THROW(plugIn->PlugInMenu());
  EXPECT_NO_THROW(plugIn->Setup());
}

TEST_P(PlugIn, IsReleasedIndependentlyOfItsElements) {
  auto fresh = library_.New<orvik::IPlugIn>(library_.PlugInClass());
  fresh->Initialize(nullptr);
  const auto element = fresh->CreateTest(GetParam().testId);
  const std::weak_ptr<orvik::IPlugIn> watched = fresh;
  fresh.reset();
  EXPECT_TRUE(watched.expired()) << "something holds the plug-in object in a circle";
  EXPECT_EQ(element->TestID(), GetParam().testId);
}

}  // namespace
}  // namespace conformance
