#include <gtest/gtest.h>

#include <algorithm>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "instrument/CKELDData.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDTestElement.h"
#include "platform/IForm.h"
#include "plugin/CKELDPlugin.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "results/CKELDLimitData.h"
#include "results/CKELDResultData.h"
#include "tests/support/HostOnly.h"
#include "tests/support/WatchedLanguage.h"
#include "tests/unit/plugin/Recorders.h"

// The constants where they take effect: in saved documents, in the registry, in texts to translate.
namespace {

using orvik::As;
using Texts = std::vector<std::string>;

constexpr std::int32_t kLocalMachine = static_cast<std::int32_t>(0x80000002U);
constexpr char kSettings[] = R"(Software\Telvane\orvik\KELD(IN))";
constexpr char kTesters[] = R"(Software\Telvane\orvik\KELD(IN)\MTI)";

class Constants : public testing::Test {
 protected:
  /// What `save` writes below the root of a document, without white space between tags.
  template <class Save>
  static std::string Saved(Save save) {
    const auto document =
        keld::MKELDGlobalVars::CreateHostObject<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
    save(document->CreateRoot("R"));
    std::string text = document->SaveToString();
    for (auto end = text.find(">\n"); end != std::string::npos; end = text.find(">\n"))
      text.erase(end + 1, text.find_first_not_of(" \t\n", end + 1) - end - 1);
    return text.substr(text.find("<R>"));
  }

  support::HostOnly bench_;
};

TEST_F(Constants, SaveAResult) {
  const auto measurement = keld::instrument::CKELDMeasurement::Create();
  measurement->SetDescription("20702::No values");
  measurement->AddValue(5.3, "mA", "O", "");
  measurement->SetStatus(2);
  const auto result = keld::results::CKELDResultData::Create();
  result->SetMTIIdentifier(3);
  result->SetStatus(2);
  result->SetComment("worn lead");
  result->SetMeasurement(measurement);
  EXPECT_EQ(Saved([&](const auto& root) { result->Save(root); }),
            "<R><ResultItem MTI=\"3\"><Status>2</Status><Comment>worn lead</Comment>"
            "<Measurement Flags=\"O\"><Description>20702::No values</Description><Value>5.3</Value>"
            "<Unit>mA</Unit><Status>2</Status></Measurement></ResultItem></R>");
}

TEST_F(Constants, SaveAServiceRecordBelowItsResult) {
  const auto element = keld::model::CKELDTestElement::Create();
  const auto result = keld::results::CKELDResultData::Create();
  result->SetStatus(3);
  element->BaseElement()->SetResult(result);
  result->BuildServiceRecord(element);
  EXPECT_EQ(
      Saved([&](const auto& root) { result->Save(root); }),
      "<R><ResultItem><Status>3</Status><ServiceRecord Name=\"\" Code=\"NA\" Value=\"\" /></ResultItem></R>");
}

TEST_F(Constants, SaveAConfiguration) {
  const auto configuration = keld::configuration::CKELDTestConfiguration::Create();
  configuration->SetOptions(7);
  configuration->SetValueFilter(3);
  EXPECT_EQ(Saved([&](const auto& root) { configuration->Save(root); }),
            "<R><PlugInData><KELDConfig Options=\"7\" ValueFilter=\"Maximum value\" /></PlugInData></R>");
}

TEST_F(Constants, SaveLimitsUnderTheirName) {
  const auto element = keld::model::CKELDTestElement::Create();
  As<keld::results::CKELDLimitData>(element->Limits())->CreateStandard("IEC 62353", "class I");
  const auto saved = Saved([&](const auto& root) { element->Limits()->Save(root); });
  EXPECT_TRUE(saved.starts_with("<R><ExpectedResult>")) << saved;
  EXPECT_NE(saved.find("\"NO LIMIT KEY\""), std::string::npos) << saved;
}

TEST_F(Constants, LocateTheCatalogueInTheRegistry) {
  const auto registry = keld::MKELDGlobalVars::RegistryReader();
  ASSERT_TRUE(registry->CreateKey(kLocalMachine, kSettings));
  registry->WriteValue("Configuration",
                       std::string("<TemplateData><TestElement ID=\"410\"/></TemplateData>"));
  const auto plugin = keld::plugin::CKELDPlugin::Create();
  plugin->Initialize(nullptr);
  EXPECT_TRUE(plugin->CreateTest(410));
}

TEST_F(Constants, LocateTheTestersInTheRegistry) {
  keld::instrument::CKELDData::Shared()->SetSerialNumber("4711");
  keld::instrument::CKELDData::Shared()->SetCalibValue(35);
  const auto registry = keld::MKELDGlobalVars::RegistryReader();
  ASSERT_TRUE(registry->OpenKey(kLocalMachine, kTesters));
  EXPECT_EQ(orvik::TextOf(registry->ReadValue("4711")), "35");
  ASSERT_TRUE(registry->OpenKey(kLocalMachine, kSettings));
  EXPECT_EQ(orvik::TextOf(registry->ReadValue("LastMTI")), "4711");
}

TEST_F(Constants, ShareTextNumbersWithTheHost) {
  const auto language = support::WatchLanguage(bench_.Host());
  Texts asked;
  language->onText = [&](const std::string& text) { asked.push_back(text); };
  const auto form = bench_.Application().CreateForm("F");
  form->AddControl("orvikKELD.XKELDResultView", "view");
  EXPECT_EQ(asked, (Texts{"20340::KELD test", "231::Value", "232::High limit", "233::Low limit"}));
  asked.clear();
  keld::results::CKELDResultData::Create()->PrintReport(std::make_shared<recorders::Report>(), nullptr);
  EXPECT_EQ(asked, (Texts{"312::Result:", "231::Value", "234::Unit"}));
}

}  // namespace
