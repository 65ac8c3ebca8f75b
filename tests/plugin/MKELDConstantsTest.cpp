#include <gtest/gtest.h>

#include "plugin/MKELDConstants.h"
#include "plugin/MKELDLanguageConstants.h"
#include "plugin/MXmlConstants.h"

namespace {

TEST(MKELDConstants, HoldTheIdentity) {
  EXPECT_STREQ(keld::MKELDConstants::kPlugInID, "KELD(IN)");
  EXPECT_STREQ(keld::MKELDConstants::kModule, "KELD");
  EXPECT_STREQ(keld::MKELDConstants::kPlugInClass, "CKELDPlugin");
  EXPECT_STREQ(keld::MKELDLanguageConstants::kPlugInName, "20000::KELD Safety Tester");
}

TEST(MKELDConstants, HoldThePlacesInTheRegistry) {
  EXPECT_EQ(static_cast<std::uint32_t>(keld::MKELDConstants::kHive), 0x80000002U);
  EXPECT_STREQ(keld::MKELDConstants::kSettingsKey, R"(Software\Telvane\orvik\KELD(IN))");
  EXPECT_STREQ(keld::MKELDConstants::kInstrumentsKey, R"(Software\Telvane\orvik\KELD(IN)\MTI)");
  EXPECT_STREQ(keld::MKELDConstants::kConfigurationValue, "Configuration");
  EXPECT_STREQ(keld::MKELDConstants::kLastInstrumentValue, "LastMTI");
}

TEST(MKELDConstants, HoldTheErrorNumbers) {
  EXPECT_EQ(keld::MKELDConstants::kErrorCatalogue, -2147179988);
  EXPECT_EQ(keld::MKELDConstants::kErrorSettingsKey, -2147179890);
  EXPECT_EQ(keld::MKELDConstants::kLevelConfiguration, 3);
}

TEST(MXmlConstants, HoldTheTagsToTheLetter) {
  namespace Tag = keld::MXmlConstants;
  EXPECT_STREQ(Tag::kTemplateData, "TemplateData");
  EXPECT_STREQ(Tag::kTestElement, "TestElement");
  EXPECT_STREQ(Tag::kID, "ID");
  EXPECT_STREQ(Tag::kLID, "LID");
  EXPECT_STREQ(Tag::kType, "Type");
  EXPECT_STREQ(Tag::kName, "Name");
  EXPECT_STREQ(Tag::kParameter, "Parameter");
  EXPECT_STREQ(Tag::kUnit, "Unit");
  EXPECT_STREQ(Tag::kKELDConfig, "KELDConfig");
  EXPECT_STREQ(Tag::kOptions, "Options");
  EXPECT_STREQ(Tag::kValueFilter, "ValueFilter");
  EXPECT_STREQ(Tag::kPlugInData, "PlugInData");
  EXPECT_STREQ(Tag::kMTI, "MTI");
  EXPECT_STREQ(Tag::kStatus, "Status");
  EXPECT_STREQ(Tag::kComment, "Comment");
  EXPECT_STREQ(Tag::kServiceRecord, "ServiceRecord");
  EXPECT_STREQ(Tag::kMeasurement, "Measurement");
  EXPECT_STREQ(Tag::kResultItem, "ResultItem");
  EXPECT_STREQ(Tag::kExpectedResult, "ExpectedResult");
  EXPECT_STREQ(Tag::kFlags, "Flags");
  EXPECT_STREQ(Tag::kDescription, "Description");
  EXPECT_STREQ(Tag::kValue, "Value");
}

TEST(MKELDLanguageConstants, HoldTheTextsThatAreSharedWithTheHost) {
  namespace Text = keld::MKELDLanguageConstants;
  EXPECT_STREQ(Text::kOK, "1::&OK");
  EXPECT_STREQ(Text::kYes, "3::&Yes");
  EXPECT_STREQ(Text::kNo, "4::&No");
  EXPECT_STREQ(Text::kTestGuide, "200::TEST GUIDE");
  EXPECT_STREQ(Text::kEndTest, "202::Do you want to end this test and discard all previous test results?");
  EXPECT_STREQ(Text::kValue, "231::Value");
  EXPECT_STREQ(Text::kHighLimit, "232::High limit");
  EXPECT_STREQ(Text::kLowLimit, "233::Low limit");
  EXPECT_STREQ(Text::kUnit, "234::Unit");
  EXPECT_STREQ(Text::kResult, "312::Result:");
  EXPECT_STREQ(Text::kLimits, "320::Limits:");
  EXPECT_STREQ(Text::kHighValue, "321::High value");
  EXPECT_STREQ(Text::kLowValue, "322::Low value");
  EXPECT_STREQ(Text::kMtiData, "462::MTI Data");
}

}  // namespace
