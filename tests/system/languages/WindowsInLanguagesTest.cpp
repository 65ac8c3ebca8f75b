#include "OrvikTypeLib/IInformationRecord.h"
#include "host/base/LanguageService.h"
#include "host/elements/ElementFactory.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "tests/system/languages/Languages.h"
#include "tests/unit/plugin/ConfigurationDialog.h"
#include "tests/unit/ui/GuideTest.h"

namespace {

void Speak(host::document::Host& host, const std::string& language) {
  const auto service = std::make_shared<host::LanguageService>(
      language, std::vector<std::filesystem::path>{languages::Folder()});
  host.Register(orvik::HostClasses::kLanguageService, [service] { return service; });
}

struct GuideTexts {
  std::string language, title, play;
};

class GuideIn : public ui::GuideTest, public testing::WithParamInterface<GuideTexts> {
 protected:
  GuideIn() { Speak(bench_.Host(), GetParam().language); }
};

TEST_P(GuideIn, ShowsTheLanguage) {
  Perform(Element(410), [&](const ui::GuideScreen& guide) {
    EXPECT_EQ(guide.Form().Caption(), GetParam().title);
    EXPECT_EQ(guide.Buttons()->CommandCaption(202), GetParam().play);
  });
}

INSTANTIATE_TEST_SUITE_P(All, GuideIn,
                         testing::Values(GuideTexts{"de", "PRÜFABLAUF", "Start"},
                                         GuideTexts{"fr", "GUIDE D'ESSAI", "Démarrer"},
                                         GuideTexts{"es", "GUÍA DE ENSAYO", "Iniciar"},
                                         GuideTexts{"zh", "测试向导", "开始"}),
                         [](const auto& given) { return given.param.language; });

using Texts = std::vector<std::string>;

TEST(SetUpDialogInGerman, ShowsTheSettingsOfASequence) {
  support::HostOnly bench;
  Speak(bench.Host(), "de");
  support::ConfigurationDialog<keld::model::CKELDSequence> open(600);
  EXPECT_EQ(open.list->Items(), (Texts{"Keine Werte", "Alle Werte", "Größter Wert", "Kleinster Wert"}));
  EXPECT_EQ(open.control->GetControl("lblAssign")->Caption(), "Werte der Prüfungen der Gruppe:");
  // Settings are numbers, so the choice does not depend on the language.
  open.list->Choose(2);
  EXPECT_EQ(open.configuration->ValueFilter(), 3);
}

TEST(SetUpDialogInChinese, ShowsTheSettingsOfASequence) {
  support::HostOnly bench;
  Speak(bench.Host(), "zh");
  support::ConfigurationDialog<keld::model::CKELDSequence> open(600);
  EXPECT_EQ(open.list->Items(), (Texts{"不取值", "所有值", "最大值", "最小值"}));
  EXPECT_EQ(open.control->GetControl("lblGeneralSettings")->Caption(), "常规设置：");
}

/// Names are translated; units are not, since limits are compared by them.
TEST(CatalogueInLanguages, HasTranslatedNamesAndTheSameUnits) {
  const std::vector<std::pair<std::string, std::string>> names{
      {"de", "Schutzleiter, mit Netzleitung"},
      {"fr", "Terre de protection, avec cordon secteur"},
      {"es", "Tierra de protección, con cable de red"},
      {"zh", "保护接地，含电源线"}};
  for (const auto& [language, name] : names) {
    support::VirtualBench bench;
    Speak(bench.Host(), language);
    const auto element = bench.CreateTest(410);
    const auto standard = element->Limits()->CreateStandard("N", "");
    EXPECT_EQ(standard->Limit(1)->Unit(), "mOhm") << language;
    const auto base = bench.Host().Elements()->BaseOf(element);
    EXPECT_EQ(base->Information()->DisplayName(), name);
  }
}

}  // namespace
