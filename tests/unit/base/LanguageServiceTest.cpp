#include <gtest/gtest.h>

#include "host/base/LanguageService.h"
#include "platform/Controls.h"
#include "platform/IForm.h"
#include "platform/ITreeView.h"
#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"
#include "toolkit/headless/Application.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;
using support::TemporaryFolder;

constexpr char kNotSupported[] =
    "20805::The connected KELD does not support the test  %%1 %%2. The test will be recorded as Not "
    "Applicable.";

std::string Po(const std::string& number, const std::string& text) {
  return "msgctxt \"" + number + "\"\nmsgid \"x\"\nmsgstr \"" + text + "\"\n\n";
}

TEST(LanguageService, ShowsTheEnglishTextWithoutATranslation) {
  const LanguageService service("", {});
  EXPECT_EQ(service.Translate("20702::No values", "KELD", {}), "No values");
  EXPECT_EQ(service.Translate("::", "KELD", {}), "");
  EXPECT_EQ(service.Translate("1::a::b", "KELD", {}), "a::b");
  EXPECT_EQ(service.Translate("99999999999::huge", "KELD", {}), "huge");
}

TEST(LanguageService, KeepsTextOfAnotherForm) {
  const LanguageService service("", {});
  for (const auto* text : {"", "plain", "Ratio::x", "12:x", "-1::x", " 1::x"})
    EXPECT_EQ(service.Translate(text, "KELD", {}), text);
}

TEST(LanguageService, InsertsValuesAndKeepsTheTwoBlanks) {
  const LanguageService service("", {});
  EXPECT_EQ(
      service.Translate(kNotSupported, "KELD", {"Earth leakage", "NC"}),
      "The connected KELD does not support the test  Earth leakage NC. The test will be recorded as Not "
      "Applicable.");
}

TEST(LanguageService, InsertsValuesLiterallyAndOnce) {
  EXPECT_EQ(WithValues("%%1 and %%2", {"%%2", "%%1"}), "%%2 and %%1");
  EXPECT_EQ(WithValues("%%1%%1", {"$&\\1"}), "$&\\1$&\\1");
  EXPECT_EQ(WithValues("%%2", {"only one"}), "%%2");
  EXPECT_EQ(WithValues("100% %1 %% %%0 %%x %%", {"a"}), "100% %1 %% %%0 %%x %%");
  EXPECT_EQ(WithValues("%%%1", {"a"}), "%a");
}

TEST(LanguageService, TranslatesByNumberAndModule) {
  TemporaryFolder folder;
  folder.Write("KELD.da.po", Po("20702", "Ingen") + Po("20805", "%%2 f\xC3\xB8r %%1"));
  folder.Write("orvik.da.po", Po("3", "&Ja") + Po("20702", "host"));
  folder.Write("KELD.de.po", Po("20702", "Keine"));
  const LanguageService service("da", {folder.Path()});
  EXPECT_EQ(service.Translate("20702::No values", "KELD", {}), "Ingen");
  EXPECT_EQ(service.Translate("3::&Yes", "KELD", {}), "&Ja") << "the host's texts serve all modules";
  EXPECT_EQ(service.Translate(kNotSupported, "KELD", {"a", "b"}), "b f\xC3\xB8r a");
  EXPECT_EQ(service.Translate("20703::All values", "KELD", {}), "All values");
  EXPECT_EQ(service.Translate("20702::No values", "OTHER", {}), "host");
}

TEST(LanguageService, RegionOverridesTheGeneralLanguage) {
  TemporaryFolder folder;
  folder.Write("KELD.pt.po", Po("1", "um") + Po("2", "dois"));
  folder.Write("KELD.pt_BR.po", Po("2", "dois BR"));
  const LanguageService service("pt_BR.UTF-8", {folder.Path()});
  EXPECT_EQ(service.Translate("1::one", "KELD", {}), "um");
  EXPECT_EQ(service.Translate("2::two", "KELD", {}), "dois BR");
}

TEST(LanguageService, UsesEnglishWithoutAFolder) {
  const LanguageService service("da", {"/nowhere"});
  EXPECT_EQ(service.Translate("1::one", "KELD", {}), "one");
}

TEST(LanguageService, RejectsAMalformedFileOrLanguage) {
  TemporaryFolder folder;
  folder.Write("KELD.da.po", "rubbish");
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { LanguageService("da", {folder.Path()}); }),
                             "KELD.da.po, line 1"));
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { LanguageService("../da", {folder.Path()}); }),
                             "\"../da\" is no language"));
  EXPECT_EQ(support::ErrorText([&] { LanguageService("C.UTF-8", {folder.Path()}); }), "");
}

TEST(LanguageService, TranslatesOnlyCaptionsWithATextNumber) {
  TemporaryFolder folder;
  folder.Write("KELD.da.po", Po("200", "GUIDE") + Po("20774", "Ledning 1"));
  const LanguageService service("da", {folder.Path()});
  const auto application =
      std::make_shared<toolkit::headless::Application>(toolkit::loop::ClockKind::kVirtual);
  const auto form = application->CreateForm("F");
  form->SetCaption("200::TEST GUIDE");
  form->AddLabel("lblA")->SetCaption("1::&OK");
  form->AddButton("cmdB")->SetCaption("plain");
  form->AddTextBox("txtC")->SetText("1::typed");
  const auto tree = form->AddTreeView("tvwD");
  tree->AddNode("Lead 1 key", "20774::Lead 1");
  tree->AddNode("k", "as it is");
  const auto combo = form->AddComboBox("cboE");
  combo->AddItem("1::item");
  service.TranslateControls("KELD", form);
  EXPECT_EQ(form->Caption(), "GUIDE");
  EXPECT_EQ(form->Find("lblA")->Caption(), "&OK");
  EXPECT_EQ(form->Find("cmdB")->Caption(), "plain");
  EXPECT_EQ(tree->NodeCaption("Lead 1 key"), "Ledning 1");
  EXPECT_EQ(tree->NodeCaption("k"), "as it is");
  EXPECT_EQ(combo->Items(), std::vector<std::string>{"1::item"});
}

TEST(LanguageService, RejectsAnEmptyPanel) {
  const LanguageService service("", {});
  EXPECT_EQ(support::ErrorNumber([&] { service.TranslateControls("KELD", nullptr); }),
            orvik::HostError::kEmptyReference);
}

}  // namespace
}  // namespace host
