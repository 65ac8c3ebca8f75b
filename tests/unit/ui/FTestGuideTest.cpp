#include "instrument/CKELDData.h"
#include "instrument/XKELDData.h"
#include "resources/Resources.h"
#include "tests/unit/ui/GuideTest.h"
#include "toolkit/headless/Tabs.h"

// The operations that the element calls.
namespace {

using Texts = std::vector<std::string>;
using ui::GuideScreen;

using FTestGuideTest = ui::GuideTest;

TEST_F(FTestGuideTest, SetsACaptionIfThereIsNone) {
  EXPECT_EQ(Opened(Element())->Form()->Caption(), "TEST GUIDE");
  const auto named = keld::ui::FTestGuide::Create();
  named->Form()->SetCaption("Mine");
  named->Initialize(Element(), controller_);
  EXPECT_EQ(named->Form()->Caption(), "Mine");
}

TEST_F(FTestGuideTest, ShowsTheTestAndTheInstrumentData) {
  const auto element = Element();
  const auto guide = Opened(element);
  const auto pane = GuideScreen(guide->Form()).Pane("xstShowMTI");
  EXPECT_EQ(pane->TestElement(), element);
  EXPECT_NE(GuideScreen(guide->Form()).Pane("xtwWizard")->Guidance().find("Mains voltage"),
            std::string::npos);
  EXPECT_TRUE(orvik::As<keld::instrument::XKELDData>(pane->Tab("tab:MtiData")));
  std::shared_ptr<orvik::platform::ITabs> tabs;
  for (const auto& control : GuideScreen(guide->Form()).Site("xstShowMTI")->Panel()->Controls()) {
    if (auto found = orvik::As<orvik::platform::ITabs>(control)) tabs = found;
  }
  ASSERT_TRUE(tabs);
  EXPECT_EQ(tabs->Keys(), Texts{"tab:MtiData"});
  EXPECT_EQ(tabs->PageCaption("tab:MtiData"), "MTI Data");
  const auto picture = keld::FindResource("tab:MtiData");
  ASSERT_FALSE(picture.empty());
  EXPECT_EQ(std::dynamic_pointer_cast<toolkit::headless::Tabs>(tabs)->PageBitmap("tab:MtiData"),
            (std::vector<std::byte>(picture.begin(), picture.end())));
}

TEST_F(FTestGuideTest, RefreshesTheInstrumentDataWhenOpened) {
  const auto guide = keld::ui::FTestGuide::Create();
  guide->Load();
  keld::instrument::CKELDData::Shared()->SetFirmwareVersion("9.9");
  guide->Initialize(Element(), controller_);
  EXPECT_EQ(GuideScreen(guide->Form()).InstrumentField<orvik::platform::ITextBox>("txtFwVer")->Text(), "9.9");
}

TEST_F(FTestGuideTest, AddsTheCalibrateEntryOnce) {
  const auto guide = Opened(Element());
  guide->Load();
  guide->Initialize(Element(), controller_);
  const auto buttons = GuideScreen(guide->Form()).Buttons();
  const auto commands = buttons->Commands();
  EXPECT_EQ(std::count(commands.begin(), commands.end(), 900), 1);
  EXPECT_EQ(buttons->CommandCaption(900), "Calibrate...");
}

TEST_F(FTestGuideTest, OffersTheButtonsOfTheConfiguration) {
  const auto element = Element();
  for (const std::int32_t options : {0, 1, 2, 3, 4, 4097}) {
    SetOptions(*element, options);
    const auto guide = Opened(element);
    const auto buttons = GuideScreen(guide->Form()).Buttons();
    EXPECT_EQ(buttons->CommandVisible(301), (options & 1) != 0) << options;
    EXPECT_EQ(buttons->CommandVisible(302), (options & 2) != 0) << options;
    EXPECT_TRUE(buttons->CommandVisible(202));
  }
}

TEST_F(FTestGuideTest, ShowsTheNextStandardOnARightClick) {
  controller_->standards = Standards({"A", "B"});
  const auto element = Element();
  const auto result = keld::results::CKELDResultData::Create();
  const auto measurement = keld::instrument::CKELDMeasurement::Create();
  measurement->AddValue(230.0, "V", "", "");
  result->SetMeasurement(measurement);
  element->BaseElement()->SetResult(result);
  const auto limits = orvik::As<keld::results::CKELDLimitData>(element->Limits());
  limits->AddStandard(Standard("A", "240"));
  limits->AddStandard(Standard("B", "250"));

  const auto guide = Opened(element);
  guide->Form()->Show();
  guide->ShowResult(element);
  const auto list = GuideScreen(guide->Form()).Results();
  const auto high = [&] { return list->Cell("7::", "HIL").text; };
  EXPECT_EQ(high(), "240 V");
  list->ClickAt({1, 0, 0, 0});
  EXPECT_EQ(high(), "240 V");
  list->ClickAt({2, 0, 0, 0});
  EXPECT_EQ(high(), "250 V");
  list->ClickAt({2, 0, 0, 0});
  EXPECT_EQ(high(), "240 V");
}

TEST_F(FTestGuideTest, OpensWithoutAControllerOrStandards) {
  keld::ui::FTestGuide::Create()->Initialize(Element(), nullptr);
  controller_->standards = nullptr;
  Opened(Element());
}

TEST_F(FTestGuideTest, RefreshesItsDataAndItsWindow) {
  const auto guide = Opened(Element());
  const auto panel = GuideScreen(guide->Form()).Site("xstShowMTI")->Panel();
  const int before = panel->RefreshCount();
  const int windowBefore = guide->Form()->RefreshCount();
  guide->Refresh();
  EXPECT_GT(panel->RefreshCount(), before);
  EXPECT_EQ(guide->Form()->RefreshCount(), windowBefore + 1);
}

TEST_F(FTestGuideTest, KeepsNeitherElementNorControllerAlive) {
  auto element = Element();
  auto controller = std::make_shared<support::RecordingController>();
  const auto guide = keld::ui::FTestGuide::Create();
  guide->Initialize(element, controller);
  const std::weak_ptr<orvik::ITestElement> weakElement = element;
  const std::weak_ptr<support::RecordingController> weakController = controller;
  element.reset();
  controller.reset();
  EXPECT_TRUE(weakElement.expired());
  EXPECT_TRUE(weakController.expired());
  Command(guide, 202);  // without an element
  EXPECT_FALSE(guide->Running());
}

TEST_F(FTestGuideTest, UnloadsItsWindowWhenDestroyed) {
  auto guide = Opened(Element());
  const auto form = guide->Form();
  form->Show();
  ASSERT_TRUE(form->Loaded());
  guide.reset();
  EXPECT_FALSE(form->Loaded());
  EXPECT_TRUE(App().Forms().empty());
}

TEST_F(FTestGuideTest, EndsItsModalDisplayWhenHiddenOrUnloaded) {
  for (const bool unload : {false, true}) {
    const auto guide = Opened(Element());
    App().Post([&] { unload ? guide->Unload() : guide->Hide(); });
    guide->ShowModal();
    EXPECT_EQ(guide->Form()->Loaded(), !unload);
  }
}

TEST_F(FTestGuideTest, CanBeClosedWithoutATest) {
  const auto guide = keld::ui::FTestGuide::Create();
  guide->Load();
  guide->Form()->Show();
  guide->Form()->Close();
  EXPECT_FALSE(guide->Form()->Loaded());
  EXPECT_TRUE(windows_.empty());
}

TEST_F(FTestGuideTest, CanBeOperatedWithoutAPane) {
  for (const std::string missing : {orvik::HostClasses::kContentPane, "orvikKELD.XKELDResultView"}) {
    controller_->navigation.clear();
    App().SetControlFactory([&](const std::string& classId) {
      return classId == missing
                 ? nullptr
                 : orvik::As<orvik::platform::IUserControl>(bench_.Host().CreateObject(classId));
    });
    const auto element = Element();
    Perform(element, [](GuideScreen guide) {
      guide.Click(202);
      guide.Click(103);
    });
    EXPECT_TRUE(left_) << missing;
    EXPECT_EQ(element->Result()->Status(), 1) << missing;
    EXPECT_EQ(controller_->navigation, (std::vector<std::int32_t>{0, 0})) << missing;
  }
}

TEST_F(FTestGuideTest, CanBeLeftWithoutAnyControl) {
  App().SetControlFactory([](const std::string&) { return nullptr; });
  const auto element = Element();
  AnswerQuestions(true);
  const auto opened = App().FormShown().Subscribe([&](const std::shared_ptr<orvik::platform::IForm>& form) {
    if (form->Name() == "FTestGuide") App().Post([form] { form->Close(); });
  });
  element->Perform(controller_);
  EXPECT_EQ(controller_->navigation, (std::vector<std::int32_t>{0, 2}));
}

}  // namespace
