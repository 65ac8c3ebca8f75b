// The calibration window, operated as a technician does.
#include <gtest/gtest.h>

#include "OrvikTypeLib/ITgProgressBar.h"
#include "instrument/CKELDData.h"
#include "instrument/FCalibrateLeads.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IUserControl.h"
#include "tests/unit/instrument/LinkBench.h"

namespace instrument_test {
namespace {

namespace platform = orvik::platform;

constexpr int kEndless = 1000;

class FCalibrateLeadsTest : public testing::Test {
 protected:
  FCalibrateLeadsTest() { Open(); }

  void Open() {
    dialog_ = keld::instrument::FCalibrateLeads::Create();
    form_ = orvik::As<orvik::IDialogForm>(dialog_)->Form();
  }
  template <class Control>
  std::shared_ptr<Control> Find(const char* name) {
    auto control = orvik::As<Control>(form_->Find(name));
    if (!control) throw std::runtime_error(std::string("no control ") + name);
    return control;
  }
  std::string Label(const char* name) { return Find<platform::ILabel>(name)->Caption(); }
  platform::IButton& Button(const char* name) { return *Find<platform::IButton>(name); }
  platform::ITextBox& Serial() { return *Find<platform::ITextBox>("txtSerial"); }
  void Click(const char* name) { Button(name).Click(); }
  void At(milliseconds when, std::function<void()> action) {
    bench_.Application().CallAt(bench_.Application().Now() + when, std::move(action));
  }
  /// The tester answers the measurement with those parameters.
  void Answer(const std::string& result, const std::string& identity = ",KELD(IN),4711,1.05") {
    bench_.Line().AnswerBy([this, result, identity](const std::string& command) {
      if (command == "IREM") bench_.Line().Reply("irem" + identity);
      if (command.starts_with("STST")) bench_.Line().Reply("stst");
      if (command.starts_with("GRES")) bench_.Line().Reply("gres" + result);
      if (command == "EREM") bench_.Line().Reply("erem");
    });
  }

  /// Shows the window and measures once with these parameters of the tester's replies.
  void Measure(const std::string& result = ",410,0,0.125,0,Ohm",
               const std::string& identity = ",KELD(IN),4711,1.05") {
    form_->Show();
    Answer(result, identity);
    Click("cmdCalibrate");
  }

  support::VirtualBench bench_;
  std::shared_ptr<keld::instrument::FCalibrateLeads> dialog_;
  std::shared_ptr<platform::IForm> form_;
};

TEST_F(FCalibrateLeadsTest, ShowsItsTexts) {
  EXPECT_EQ(form_->Name(), "FCalibrateLeads");
  EXPECT_EQ(form_->Caption(), "KELD Calibration");
  EXPECT_EQ(Label("lblHlpTxt"),
            "Connect enclosure clip to ground on KELD's power socket and click Calibrate.");
  EXPECT_EQ(Button("cmdCalibrate").Caption(), "Ca&librate");
  EXPECT_EQ(Button("cmdCalibrate").ToolTip(), "Start test lead calibration");
  EXPECT_EQ(Button("cmdSave").Caption(), "&Save && Close");
  EXPECT_EQ(Button("cmdSave").ToolTip(), "Store calibration value on the given serial number");
  EXPECT_EQ(Button("cmdCancel").ToolTip(), "Close window and return to test");
  EXPECT_EQ(Label("lblSerial"), "Serial number:");
  EXPECT_EQ(Label("lblMTIType"), "MTI Type:");
  EXPECT_EQ(Label("lblMilli") + Label("lblOhm"), "mOhm");
  EXPECT_NE(form_->Find("pboCalibData"), nullptr);
  EXPECT_NE(form_->Find("xpbProgress"), nullptr);
  EXPECT_EQ(dialog_->ClassID(), "orvikKELD.FCalibrateLeads");
}

TEST_F(FCalibrateLeadsTest, LaysOutTheValueInItsFrameAndAllControls) {
  Find<platform::ILabel>("lblValue")->SetCaption("125");
  form_->Show();
  const auto frame = form_->Find("pboCalibData")->Bounds();
  for (const char* name : {"lblValue", "lblMilli", "lblOhm"}) {
    const auto inner = form_->Find(name)->Bounds();
    EXPECT_GT(inner.top, frame.top) << name;
    EXPECT_LT(inner.top + inner.height, frame.top + frame.height) << name;
    EXPECT_GE(inner.left, frame.left) << name;
    EXPECT_LE(inner.left + inner.width, frame.left + frame.width) << name;
  }
  platform::Twips bottom = 0;
  for (const char* name :
       {"lblHlpTxt", "txtSerial", "txtMTIType", "pboCalibData", "xpbProgress", "cmdSave"}) {
    const auto bounds = form_->Find(name)->Bounds();
    EXPECT_GE(bounds.top, bottom) << name;
    EXPECT_GT(bounds.width, 0) << name;
    bottom = bounds.top + bounds.height;
  }
  EXPECT_LE(bottom, form_->InnerSize().height);
}

TEST_F(FCalibrateLeadsTest, NothingCanBeSavedAtFirst) {
  EXPECT_FALSE(Button("cmdSave").Enabled());
  EXPECT_FALSE(dialog_->Cancelled());
  form_->Show();
  Serial().TypeOver("4711");
  EXPECT_FALSE(Button("cmdSave").Enabled());
}

TEST_F(FCalibrateLeadsTest, MeasuresTheLeadsAndEndsTheSession) {
  Measure();
  EXPECT_EQ(bench_.Wire().Sent(), (Texts{"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM"}));
  EXPECT_EQ(Label("lblValue"), "125");
  EXPECT_EQ(Label("lblStatus"), "Calibration complete.");
  EXPECT_EQ(
      Label("lblHlpTxt"),
      "Enter a serial number and click Save & Close to return to the Test Guide. The serial number may be "
      "provided by the test instrument.");
  EXPECT_EQ(Serial().Text(), "4711");
  EXPECT_EQ(Find<platform::ITextBox>("txtMTIType")->Text(), "KELD(IN)");
  EXPECT_TRUE(Button("cmdSave").Enabled());
  EXPECT_FALSE(bench_.Line().Line()->Connected());
  const auto progress =
      orvik::As<orvik::ITgProgressBar>(Find<platform::IContainerSite>("xpbProgress")->Object());
  EXPECT_EQ(progress->Value(), 5);
}

TEST_F(FCalibrateLeadsTest, WorksWithTheSimulatedTester) {
  form_->Show();
  Click("cmdCalibrate");
  EXPECT_TRUE(Button("cmdSave").Enabled());
  EXPECT_EQ(Serial().Text(), bench_.Tester().Model().Who().serial);
  EXPECT_FALSE(bench_.Tester().InRemoteMode());
}

TEST_F(FCalibrateLeadsTest, ButtonsAreDisabledWhileMeasuring) {
  form_->Show();
  Answer(",410,0,0.125,0,Ohm");
  int looked = 0;
  for (const int second : {1, 4, 8}) {
    At(milliseconds(second * 1000), [&] {
      ++looked;
      EXPECT_EQ(Label("lblStatus"), "Calibrating. Please wait...");
      EXPECT_FALSE(Button("cmdCalibrate").Enabled());
      EXPECT_FALSE(Button("cmdSave").Enabled());
      Click("cmdCalibrate");
    });
  }
  At(milliseconds(12000), [&] {
    ++looked;
    EXPECT_EQ(Label("lblStatus"), "Calibration complete.");
    EXPECT_TRUE(Button("cmdCalibrate").Enabled());
    EXPECT_TRUE(Button("cmdSave").Enabled());
  });
  Click("cmdCalibrate");
  EXPECT_EQ(looked, 4);
  EXPECT_EQ(bench_.Wire().Sent().size(), 5U);
}

TEST_F(FCalibrateLeadsTest, ReadingsAreShownInMilliohm) {
  const std::pair<std::string, std::string> cases[] = {
      {",410,0,0.125,0,Ohm", "125"},    {",410,0,0.125,0,ohm", "0.125"}, {",410,0,125,0,mOhm", "125"},
      {",410,0,0.1254,0,Ohm", "125.4"}, {",410,0,abc,0,Ohm", "0"},       {",410,0,-0.01,0,Ohm", "-10"},
      {",410,0,0.125", "0.125"},
  };
  for (const auto& [reply, shown] : cases) {
    Measure(reply);
    EXPECT_EQ(Label("lblValue"), shown) << reply;
    EXPECT_TRUE(Button("cmdSave").Enabled()) << reply;
  }
}

TEST_F(FCalibrateLeadsTest, AnOverloadCannotBeSaved) {
  Measure();
  Measure(",410,0,0.125,1,Ohm");
  EXPECT_EQ(Label("lblValue"), "OL");
  EXPECT_FALSE(Button("cmdSave").Enabled());
  Serial().TypeOver("another");
  EXPECT_FALSE(Button("cmdSave").Enabled());
  EXPECT_EQ(Label("lblHlpTxt"),
            "Connect enclosure clip to ground on KELD's power socket and click Calibrate.");
}

TEST_F(FCalibrateLeadsTest, NoAnswerKeepsTheValueButForbidsSaving) {
  Measure();
  bench_.Line().AnswerBy([](const std::string&) {});
  Click("cmdCalibrate");
  EXPECT_EQ(Label("lblValue"), "125");
  EXPECT_EQ(Label("lblStatus"), "Calibration complete.");
  EXPECT_FALSE(Button("cmdSave").Enabled());
}

TEST_F(FCalibrateLeadsTest, OtherOutcomesAreIgnored) {
  form_->Show();
  for (const std::string reply : {"ERRM,1003", "ERRM,6002", "ERRM,1", "stst"}) {
    bench_.Line().AnswerBy([&](const std::string& command) {
      if (command == "IREM") bench_.Line().Reply("irem,KELD(IN),4711,1.05");
      if (command.starts_with("STST")) bench_.Line().Reply("stst");
      if (command.starts_with("GRES")) bench_.Line().Reply(reply);
      if (command == "EREM") bench_.Line().Reply("erem");
    });
    Click("cmdCalibrate");
    EXPECT_EQ(Label("lblValue"), "") << reply;
    EXPECT_FALSE(Button("cmdSave").Enabled()) << reply;
  }
}

TEST_F(FCalibrateLeadsTest, SendsNothingWithoutAPort) {
  bench_.Unassign();
  form_->Show();
  Click("cmdCalibrate");
  EXPECT_TRUE(bench_.Wire().All().empty());
  EXPECT_EQ(Label("lblStatus"), "Calibration complete.");
  EXPECT_EQ(Label("lblValue"), "");
  EXPECT_TRUE(Button("cmdCalibrate").Enabled());
}

TEST_F(FCalibrateLeadsTest, NoPortKeepsTheValueButForbidsSaving) {
  Measure();
  bench_.Unassign();
  Click("cmdCalibrate");
  EXPECT_EQ(Label("lblValue"), "125");
  EXPECT_FALSE(Button("cmdSave").Enabled());
  Serial().TypeOver("another");
  EXPECT_FALSE(Button("cmdSave").Enabled());
}

TEST_F(FCalibrateLeadsTest, SaveNeedsASerialNumber) {
  Measure(",410,0,0.125,0,Ohm", ",KELD(IN),,1.05");
  EXPECT_EQ(Serial().Text(), "");
  EXPECT_FALSE(Button("cmdSave").Enabled());
  Serial().Type("4");
  EXPECT_TRUE(Button("cmdSave").Enabled());
  Serial().TypeOver("");
  EXPECT_FALSE(Button("cmdSave").Enabled());
}

TEST_F(FCalibrateLeadsTest, IdentityWithoutSerialNumberIsSavedNotShown) {
  keld::instrument::CKELDData::Shared()->SetSerialNumber("0815");
  Measure(",410,0,0.125,0,Ohm", ",KELD(IN)-2,,1.07");
  EXPECT_EQ(Serial().Text(), "");
  EXPECT_EQ(Find<platform::ITextBox>("txtMTIType")->Text(), "");
  Serial().TypeOver("4711");
  Click("cmdSave");
  const auto data = keld::instrument::CKELDData::Shared();
  EXPECT_EQ(data->MTIType(), "KELD(IN)-2");
  EXPECT_EQ(data->FirmwareVersion(), "1.07");
  EXPECT_EQ(data->SerialNumber(), "4711");
  EXPECT_EQ(data->CalibratedSerialNumbers(), (Texts{"4711"}));
}

TEST_F(FCalibrateLeadsTest, SaveUsesTheTestersSerialNumber) {
  Measure(",410,0,0.1256,0,Ohm");
  Click("cmdSave");
  const auto data = keld::instrument::CKELDData::Shared();
  EXPECT_EQ(data->SerialNumber(), "4711");
  EXPECT_EQ(data->FirmwareVersion(), "1.05");
  EXPECT_EQ(data->CalibValue(), 126);
  EXPECT_EQ(data->CalibratedSerialNumbers(), (Texts{"4711"}));
  EXPECT_FALSE(form_->Visible());
  EXPECT_FALSE(dialog_->Cancelled());
}

TEST_F(FCalibrateLeadsTest, SaveUsesATypedSerialNumber) {
  Measure();
  Serial().TypeOver("0815");
  Click("cmdSave");
  const auto data = keld::instrument::CKELDData::Shared();
  EXPECT_EQ(data->SerialNumber(), "0815");
  EXPECT_EQ(data->CalibratedSerialNumbers(), (Texts{"0815"}));
}

TEST_F(FCalibrateLeadsTest, ValueOutOfRangeIsNotStored) {
  Measure(",410,0,1e20,0,Ohm");
  Click("cmdSave");
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->CalibValue(), 0);
  EXPECT_TRUE(keld::instrument::CKELDData::Shared()->CalibratedSerialNumbers().empty());
}

TEST_F(FCalibrateLeadsTest, CancelStoresNothing) {
  Measure();
  Click("cmdCancel");
  EXPECT_TRUE(dialog_->Cancelled());
  EXPECT_FALSE(form_->Visible());
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->SerialNumber(), "");
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->CalibValue(), 0);
}

TEST_F(FCalibrateLeadsTest, CancelDuringAMeasurementEndsTheSessionAtOnce) {
  Answer(",410,0,0.125,0,Ohm");
  At(milliseconds(0), [&] { Click("cmdCalibrate"); });
  At(milliseconds(5000), [&] { Click("cmdCancel"); });
  dialog_->ShowModal(nullptr);
  EXPECT_EQ(bench_.Wire().Sent(), (Texts{"IREM", "STST,210,0", "EREM"}));
  EXPECT_EQ(bench_.Application().Now(), milliseconds(5000 + 3500 + 3500));
  EXPECT_TRUE(dialog_->Cancelled());
}

TEST_F(FCalibrateLeadsTest, TheCrossAndTheEscapeKeyCancel) {
  for (const bool cross : {true, false}) {
    Open();
    form_->Show();
    if (cross)
      form_->Close();
    else
      form_->PressKey(platform::kKeyEscape, 0);
    EXPECT_TRUE(dialog_->Cancelled());
    EXPECT_FALSE(form_->Visible());
    dialog_->Unload();
    EXPECT_FALSE(form_->Loaded());
  }
}

TEST_F(FCalibrateLeadsTest, AModalDisplayEndsWithTheWindow) {
  At(milliseconds(1000), [&] { Click("cmdCancel"); });
  dialog_->ShowModal(nullptr);
  EXPECT_TRUE(dialog_->Cancelled());
  dialog_->Unload();
  EXPECT_FALSE(form_->Loaded());
}

TEST_F(FCalibrateLeadsTest, ClickWhileTheSessionEndsMeasuresAgain) {
  form_->Show();
  Answer(",410,0,0.125,0,Ohm");
  At(milliseconds(12000), [&] { Click("cmdCalibrate"); });
  Click("cmdCalibrate");
  const auto sent = bench_.Wire().Sent();
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "GRES,410,0"), 2);
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "EREM"), 2);
  EXPECT_EQ(sent.back(), "EREM");
}

TEST_F(FCalibrateLeadsTest, SaveWhileTheSessionEndsWaitsForItsEnd) {
  Answer(",410,0,0.125,0,Ohm");
  At(milliseconds(1), [&] { Click("cmdCalibrate"); });
  At(milliseconds(12000), [&] {
    Click("cmdSave");
    EXPECT_FALSE(form_->Visible());
  });
  dialog_->ShowModal(nullptr);
  EXPECT_EQ(bench_.Wire().Sent().back(), "EREM");
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->CalibValue(), 125);
  EXPECT_FALSE(dialog_->Cancelled());
}

enum class Way { kCancel, kUnload, kRelease };

class CalibrationLeftTest : public testing::TestWithParam<std::tuple<Way, bool>> {};

TEST_P(CalibrationLeftTest, EndsTheSessionWithinBounds) {
  const auto [way, mute] = GetParam();
  bool reached = true;
  int pump = 0;
  for (; reached && pump < kEndless; ++pump) {
    SCOPED_TRACE("pump call " + std::to_string(pump));
    support::VirtualBench bench;
    auto dialog = keld::instrument::FCalibrateLeads::Create();
    const std::weak_ptr<keld::instrument::FCalibrateLeads> left = dialog;
    auto form = orvik::As<orvik::IDialogForm>(dialog)->Form();
    if (mute) bench.Line().AnswerBy([](const std::string&) {});
    form->Show();
    reached = false;
    const auto watch = bench.Application().Pumped().Subscribe([&, count = pump]() mutable {
      if (count-- != 0) return;
      reached = true;
      bench.Application().Post([&] {
        if (way == Way::kCancel) orvik::As<platform::IButton>(form->Find("cmdCancel"))->Click();
        if (way == Way::kUnload) dialog->Unload();
        if (way == Way::kRelease) dialog.reset();
      });
    });
    const auto started = bench.Application().Now();
    orvik::As<platform::IButton>(form->Find("cmdCalibrate"))->Click();
    EXPECT_LE(bench.Application().Now() - started, milliseconds(3 * 16500));
    EXPECT_FALSE(bench.Tester().InRemoteMode());
    EXPECT_FALSE(bench.Line().Line()->Connected());
    if (reached) {
      EXPECT_TRUE(way != Way::kCancel || dialog->Cancelled());
      EXPECT_TRUE(way != Way::kRelease || left.expired());
    }
    dialog.reset();
    form.reset();
    EXPECT_TRUE(bench.Application().Forms().empty());
    if (HasFailure()) return;
  }
  EXPECT_GT(pump, 5);
  EXPECT_LT(pump, kEndless);
}

INSTANTIATE_TEST_SUITE_P(Ways, CalibrationLeftTest,
                         testing::Combine(testing::Values(Way::kCancel, Way::kUnload, Way::kRelease),
                                          testing::Bool()));

}  // namespace
}  // namespace instrument_test
