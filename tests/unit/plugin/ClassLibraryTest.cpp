#include <gtest/gtest.h>

#include <set>

#include "plugin/ClassLibrary.h"
#include "tests/support/HostOnly.h"
#include "tests/unit/plugin/Recorders.h"

namespace {

const std::set<std::string> kIdentifiers = {
    "orvikKELD.CKELDPlugin",           "orvikKELD.CKELDTestElement",
    "orvikKELD.CKELDSequence",         "orvikKELD.CKELDTestConfiguration",
    "orvikKELD.CKELDLimitData",        "orvikKELD.CKELDResultData",
    "orvikKELD.CKELDMeasurement",      "orvikKELD.XKELDTestConfiguration",
    "orvikKELD.XKELDSeqConfiguration", "orvikKELD.XKELDData",
    "orvikKELD.XKELDResultView",       "orvikKELD.XDetailedResult",
    "orvikKELD.FElementSetup",         "orvikKELD.FCalibrateLeads"};

class ClassLibraryTest : public testing::Test {
 protected:
  support::HostOnly bench_;
  std::shared_ptr<orvik::IClassLibrary> library_ = std::make_shared<keld::plugin::ClassLibrary>();
};

TEST_F(ClassLibraryTest, ListsEveryClassOnceWithItsPurpose) {
  std::set<std::string> listed;
  for (std::int32_t index = 1; index <= library_->Count(); ++index) {
    EXPECT_TRUE(listed.insert(library_->ClassIdentifier(index)).second) << index;
    EXPECT_GT(library_->Purpose(index).size(), 10U) << index;
    EXPECT_EQ(library_->Purpose(index).find('\n'), std::string::npos) << index;
  }
  EXPECT_EQ(listed, kIdentifiers);
}

TEST_F(ClassLibraryTest, CreatesANewObjectOfEveryClass) {
  for (const auto& identifier : kIdentifiers) {
    const auto object = library_->CreateObject(identifier);
    ASSERT_TRUE(object) << identifier;
    EXPECT_EQ(object->ClassID(), identifier);
    EXPECT_NE(library_->CreateObject(identifier), object) << identifier;
  }
}

TEST_F(ClassLibraryTest, MatchesWholeIdentifiersIgnoringCase) {
  for (const char* identifier : {"ORVIKKELD.ckeldplugin", "orvikkeld.xdetailedresult"})
    EXPECT_TRUE(library_->CreateObject(identifier)) << identifier;
  for (const char* identifier : {"", "CKELDPlugin", "orvikKELD.", "orvikKELD.CKELDPlugin ",
                                 "orvikKELD.CKELDPlugi", "orvikKELD.IKELDTest"})
    EXPECT_FALSE(library_->CreateObject(identifier)) << identifier;
}

TEST_F(ClassLibraryTest, RejectsAnIndexOutOfRange) {
  using orvik::HostError;
  for (const std::int32_t index : {0, -1, library_->Count() + 1, 2147483647}) {
    EXPECT_EQ(recorders::ErrorOf([&] { library_->ClassIdentifier(index); }), HostError::kSubscriptOutOfRange);
    EXPECT_EQ(recorders::ErrorOf([&] { library_->Purpose(index); }), HostError::kSubscriptOutOfRange);
  }
}

}  // namespace
