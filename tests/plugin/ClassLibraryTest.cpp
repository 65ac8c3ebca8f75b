#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "OrvikTypeLib/HostError.h"
#include "plugin/ClassIdentifiers.h"
#include "plugin/ClassLibrary.h"
#include "tests/support/HostOnly.h"

namespace {

const std::vector<std::string> kIdentifiers = {
    "orvikKELD.CKELDPlugin",           "orvikKELD.CKELDTestElement",
    "orvikKELD.CKELDSequence",         "orvikKELD.CKELDTestConfiguration",
    "orvikKELD.CKELDLimitData",        "orvikKELD.CKELDResultData",
    "orvikKELD.CKELDMeasurement",      "orvikKELD.XKELDTestConfiguration",
    "orvikKELD.XKELDSeqConfiguration", "orvikKELD.XKELDData",
    "orvikKELD.XKELDResultView",       "orvikKELD.XDetailedResult",
    "orvikKELD.FElementSetup",         "orvikKELD.FCalibrateLeads"};

class Library : public testing::Test {
 protected:
  support::HostOnly bench_;
  std::shared_ptr<orvik::IClassLibrary> library_ = std::make_shared<keld::ClassLibrary>();
};

TEST_F(Library, NamesEveryClassOnceWithItsPurpose) {
  std::set<std::string> named;
  for (std::int32_t index = 1; index <= library_->Count(); ++index) {
    EXPECT_TRUE(named.insert(library_->ClassIdentifier(index)).second) << index;
    const std::string purpose = library_->Purpose(index);
    EXPECT_GT(purpose.size(), 10U) << index;
    EXPECT_EQ(purpose.find('\n'), std::string::npos);
  }
  EXPECT_EQ(named, (std::set<std::string>(kIdentifiers.begin(), kIdentifiers.end())));
}

TEST_F(Library, CreatesEveryClassAndTheObjectKnowsItsIdentifier) {
  for (const auto& identifier : kIdentifiers) {
    const auto object = library_->CreateObject(identifier);
    ASSERT_TRUE(object) << identifier;
    EXPECT_EQ(object->ClassID(), identifier);
  }
}

TEST_F(Library, CreatesANewObjectEachTime) {
  for (const auto& identifier : kIdentifiers) {
    const auto first = library_->CreateObject(identifier);
    EXPECT_NE(first, library_->CreateObject(identifier)) << identifier;
  }
}

TEST_F(Library, MatchesIdentifiersWithoutRegardToCase) {
  EXPECT_TRUE(library_->CreateObject("ORVIKKELD.ckeldplugin"));
  EXPECT_TRUE(library_->CreateObject("orvikkeld.xdetailedresult"));
}

TEST_F(Library, CreatesNothingForOtherIdentifiers) {
  for (const char* identifier : {"", "CKELDPlugin", "orvikKELD.", "orvikKELD.CKELDPlugin ",
                                 "orvikKELD.CKELDPlugi", "orvikKELD.IKELDTest"}) {
    EXPECT_FALSE(library_->CreateObject(identifier)) << identifier;
  }
}

TEST_F(Library, RefusesAnIndexOutsideItsTable) {
  for (const std::int32_t index : {0, -1, library_->Count() + 1, 2147483647}) {
    try {
      library_->ClassIdentifier(index);
      ADD_FAILURE() << index;
    } catch (const orvik::HostError& error) {
      EXPECT_EQ(error.Number(), orvik::HostError::kSubscriptOutOfRange);
    }
    EXPECT_THROW(library_->Purpose(index), orvik::HostError) << index;
  }
}

}  // namespace
