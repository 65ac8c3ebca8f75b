// The plug-in's calibration dialog under the host's guard, on the virtual clock.
#include <gmock/gmock.h>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "host/elements/ElementFactory.h"
#include "host/instruments/InstrumentColl.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/run/DocumentRunner.h"
#include "host/run/GuideToolbar.h"
#include "host/run/LeadCalibrationGuard.h"
#include "host/run/RunController.h"
#include "platform/Controls.h"
#include "tester/FaultScript.h"
#include "tests/support/VirtualBench.h"
#include "tests/unit/model/GuideOperator.h"

namespace {

using host::run::LeadCalibration;
using testing::HasSubstr;

constexpr char kWhen[] = "2026-11-22T14:03:22+01:00";
constexpr char kSerial[] = "SIM-0001";

class LeadCalibrationGuardTest : public testing::Test {
 protected:
  LeadCalibrationGuardTest() {
    stored_ = guard_.Stored().Subscribe([this](const LeadCalibration&) { ++storedCount_; });
    refused_ = guard_.Refused().Subscribe([this](const std::string& reason) { reasons_.push_back(reason); });
  }

  host::RegistryStore& Registry() { return *bench_.Host().Registry(); }
  /// What the registry holds for the tester; -1 for nothing.
  std::int32_t Stored(const std::string& serial = kSerial) {
    const auto stored = host::run::StoredLeadsOf(Registry(), serial);
    return stored ? stored->milliohms.value_or(-2) : -1;
  }
  /// Answers the measurement with these fields: value, overload, unit.
  void AnswerWith(const std::string& reading) {
    bench_.Line().AnswerBy([this, reading](const std::string& command) {
      if (command == "IREM") return bench_.Line().Reply("irem,KELD(IN),SIM-0001,3.10");
      if (command == "EREM") return bench_.Line().Reply("erem");
      if (command.starts_with("STST")) return bench_.Line().Reply("stst" + command.substr(4));
      bench_.Line().Reply("gres" + command.substr(4) + "," + reading);
    });
  }
  void FaultAt(const std::string& rule) {
    bench_.Tester().UseFaults(std::make_shared<sim::FaultScript>(rule + "\n", "fault"));
  }

  /// Opens the dialog and has the person measure, do `meanwhile` where it is given, and save as soon as the
  /// dialog lets them; they cancel what is still open after five minutes.
  void Calibrate(const std::function<void()>& meanwhile = {}) {
    const auto dialog =
        orvik::As<orvik::IDialogForm>(bench_.Host().CreateObject(keld::ClassIdentifiers::kCalibrateLeads));
    form_ = dialog->Form();
    auto& application = bench_.Application();
    application.Post([this] { host::run::ClickButton(*form_, "cmdCalibrate"); });
    if (meanwhile) meanwhile();
    PressSave();
    const auto giveUp = application.CallAt(application.Now() + std::chrono::minutes(5),
                                           [this] { host::run::ClickButton(*form_, "cmdCancel"); });
    form_->ShowModal(nullptr);
    application.Forget(giveUp);
    application.Forget(next_);
    form_->Unload();
  }
  /// Presses the button again and again; it does nothing while it is disabled.
  void PressSave() {
    auto& application = bench_.Application();
    next_ = application.CallAt(application.Now() + std::chrono::milliseconds(10), [this] {
      PressSave();
      if (pressing_) host::run::ClickButton(*form_, "cmdSave");
    });
  }
  void TypeSerial(const std::string& serial) {
    std::dynamic_pointer_cast<orvik::platform::ITextBox>(form_->Find("txtSerial"))->TypeOver(serial);
  }

  support::VirtualBench bench_;
  host::run::LeadCalibrationGuard guard_{
      {bench_.Application(), bench_.Ports(), *bench_.Host().Registry(), [] { return std::string(kWhen); }}};
  std::shared_ptr<orvik::platform::IForm> form_;
  toolkit::loop::ILoop::Id next_ = 0;
  bool pressing_ = true;
  int storedCount_ = 0;
  std::vector<std::string> reasons_;
  orvik::platform::Subscription stored_, refused_;
};

TEST_F(LeadCalibrationGuardTest, StoresASoundValueWithItsDate) {
  Calibrate();
  EXPECT_EQ(Stored(), 123);
  EXPECT_EQ(host::run::LeadsMeasured(Registry(), kSerial, 123), kWhen);
  EXPECT_EQ(storedCount_, 1);
  EXPECT_EQ(guard_.Reason(), "");
  ASSERT_TRUE(guard_.Value());
  EXPECT_EQ(guard_.Value()->milliohms, 123);
}

struct SaidCase {
  const char* reading;
  std::int32_t stored;  ///< -1 for nothing
  const char* reason;
};

TEST_F(LeadCalibrationGuardTest, StoresOnlyWhatTestLeadsCanHave) {
  const SaidCase cases[] = {
      {"0,0,Ohm", 0, ""},
      {"0.1255,0,Ohm", 126, ""},
      {"0.1245,0,Ohm", 124, ""},
      {"0.12349999999999999,0,Ohm", 124, ""},  // shown, and stored, as 123.5
      {"0.5,0,Ohm", 500, ""},
      {"125.5,0,mOhm", 126, ""},
      {"0.5001,0,Ohm", -1, "500.1 mOhm is more than test leads have"},
      {"500.4,0,mOhm", -1, "500.4 mOhm is more than test leads have"},
      {"150,0,kOhm", -1, "not in Ohm or mOhm"},
      {"150,0,V", -1, "not in Ohm or mOhm"},
      {"5000,0,MOhm", -1, "not in Ohm or mOhm"},
      {"150,0,", -1, "not in Ohm or mOhm"},
      {"0.15,0,ohm", -1, "not in Ohm or mOhm"},
      {"0.15,0, Ohm", -1, "not in Ohm or mOhm"},
      {"-0.005,0,Ohm", -1, "negative"},
      {"abc,0,Ohm", -1, "not a number"},
      {"0.12x,0,Ohm", -1, "not a number"},
      {",0,Ohm", -1, "not a number"},
      {"0.123,1,Ohm", -1, "overload"},
      {"0.123,?,Ohm", -1, "overload"},
      {"0.123,0", -1, "incomplete"},
      {"0.123,0,Ohm,5", -1, "incomplete"},
  };
  auto before = Stored();
  for (const auto& said : cases) {
    SCOPED_TRACE(said.reading);
    AnswerWith(said.reading);
    Calibrate();
    EXPECT_THAT(guard_.Reason(), HasSubstr(said.reason));
    EXPECT_EQ(guard_.Reason().empty(), said.stored >= 0) << guard_.Reason();
    EXPECT_EQ(guard_.Value().has_value(), said.stored >= 0);
    EXPECT_EQ(Stored(), said.stored >= 0 ? said.stored : before);
    before = Stored();
  }
}

TEST_F(LeadCalibrationGuardTest, ClosesTheDialogWithAReason) {
  AnswerWith("150,0,V");
  Calibrate();
  ASSERT_EQ(reasons_.size(), 1U);
  EXPECT_THAT(reasons_[0], HasSubstr("gres,410,0,150,0,V"));
  EXPECT_LT(bench_.Application().Now(), std::chrono::minutes(1));
}

TEST_F(LeadCalibrationGuardTest, ClosesTheDialogIfTheTesterLacksTheTest) {
  bench_.Line().AnswerBy([this](const std::string& command) {
    if (command == "IREM") return bench_.Line().Reply("irem,KELD(IN),SIM-0001,3.10");
    bench_.Line().Reply(command == "EREM" ? "erem" : "ERRM,6002");
  });
  Calibrate();
  ASSERT_EQ(reasons_.size(), 1U);
  EXPECT_THAT(reasons_[0], HasSubstr("does not have the test 410"));
  EXPECT_EQ(Stored(), -1);
  EXPECT_LT(bench_.Application().Now(), std::chrono::minutes(1));
}

TEST_F(LeadCalibrationGuardTest, ClosesTheDialogIfTheTesterIsSilent) {
  bench_.Line().AnswerBy([](const std::string&) {});
  Calibrate();
  ASSERT_EQ(reasons_.size(), 1U);
  EXPECT_THAT(reasons_[0], HasSubstr("no reading"));
  EXPECT_LT(bench_.Application().Now(), std::chrono::minutes(2));
}

TEST_F(LeadCalibrationGuardTest, AStopWhileMeasuringStoresNothing) {
  // After each second of the session, also while it is being closed.
  for (int second = 1; second <= 24; ++second) {
    SCOPED_TRACE(second);
    Calibrate([&] {
      bench_.Application().CallAt(bench_.Application().Now() + std::chrono::seconds(second),
                                  [this] { guard_.Cancel(); });
    });
    if (storedCount_ > 0) {
      EXPECT_GT(second, 15);
      break;
    }
    EXPECT_EQ(Stored(), -1);
    EXPECT_THAT(guard_.Reason(), HasSubstr("stopped"));
  }
  EXPECT_EQ(storedCount_, 1);
  EXPECT_TRUE(reasons_.empty());
}

TEST_F(LeadCalibrationGuardTest, CancellingShowsNoMessage) {
  pressing_ = false;
  Calibrate();
  EXPECT_EQ(Stored(), -1);
  EXPECT_EQ(storedCount_, 0);
  EXPECT_TRUE(reasons_.empty());
}

TEST_F(LeadCalibrationGuardTest, ASerialNumberMayBeTyped) {
  pressing_ = false;
  Calibrate([&] {
    bench_.Application().CallAt(bench_.Application().Now() + std::chrono::minutes(1), [this] {
      TypeSerial("KS-42");
      pressing_ = true;
    });
  });
  EXPECT_EQ(Stored("KS-42"), 123);
  EXPECT_EQ(Stored(), -1);
  EXPECT_EQ(guard_.Value()->serial, "KS-42");
}

// The reading was good, but what comes while the session is closed shows that it may not have been.
TEST_F(LeadCalibrationGuardTest, ALateDoubtComesInTimeWhenTheSerialNumberIsTyped) {
  FaultAt("at GRES 1 double");
  Calibrate([&] {
    for (int second = 1; second < 24; ++second)
      bench_.Application().CallAt(bench_.Application().Now() + std::chrono::seconds(second),
                                  [this, second] { TypeSerial("KS-" + std::to_string(second)); });
  });
  ASSERT_EQ(reasons_.size(), 1U);
  EXPECT_THAT(reasons_[0], HasSubstr("doubtful and was not stored"));
  EXPECT_TRUE(host::run::StoredLeads(Registry()).empty());
}

class CalibrationFaultTest : public LeadCalibrationGuardTest,
                             public testing::WithParamInterface<std::tuple<std::string, std::string>> {};

TEST_P(CalibrationFaultTest, StoresTheTrueValueOrNothing) {
  const auto& [command, kind] = GetParam();
  FaultAt("at " + command + " " + kind);
  Calibrate();
  const bool stored = guard_.Value().has_value();
  EXPECT_EQ(Stored(), stored ? 123 : -1);
  EXPECT_EQ(guard_.Reason().empty(), stored) << guard_.Reason();
  const bool harmless = kind == "drop" || kind == "delay 100";
  if (harmless || command == "GRES 1") {
    EXPECT_EQ(stored, harmless) << guard_.Reason();
  }
}

INSTANTIATE_TEST_SUITE_P(AtEveryCommand, CalibrationFaultTest,
                         testing::Combine(testing::Values("IREM 1", "STST 1", "GRES 1", "STST 2", "EREM 1"),
                                          testing::Values("delay 100", "delay 2500", "drop", "double",
                                                          "truncate 14", "shorten 14", "stall 12 2500",
                                                          "garble", "noise", "wrong-mnemonic", "error 1003",
                                                          "error 6002", "reply gres,420,0,0.05,0,Ohm",
                                                          "reply gres,410,0,150,0,V", "hang-up")));

TEST_F(LeadCalibrationGuardTest, RefusesAnyOtherWriteOfAPlugIn) {
  const auto registry = keld::MKELDGlobalVars::RegistryReader();
  ASSERT_TRUE(registry->CreateKey(host::plugins::keld::kRegistryHive, host::plugins::keld::kLeadsKey));
  EXPECT_THROW(registry->WriteValue(kSerial, std::int32_t{35}), orvik::HostError);
  EXPECT_EQ(Stored(), -1);
}

TEST_F(LeadCalibrationGuardTest, RefusesAnotherValueThanTheMeasuredOne) {
  std::int32_t status = 0;
  pressing_ = false;
  Calibrate([&] {
    bench_.Application().CallAt(bench_.Application().Now() + std::chrono::minutes(1), [&] {
      const auto registry = keld::MKELDGlobalVars::RegistryReader();
      registry->CreateKey(host::plugins::keld::kRegistryHive, host::plugins::keld::kLeadsKey);
      try {
        registry->WriteValue(kSerial, std::int32_t{124});
      } catch (const orvik::HostError& error) {
        status = error.Number();
      }
    });
  });
  EXPECT_EQ(status, orvik::HostError::kInvalidArgument);
  EXPECT_EQ(Stored(), -1);
  ASSERT_EQ(reasons_.size(), 1U);
  EXPECT_THAT(reasons_[0], HasSubstr("not what the tester measured"));
}

class UnwritableRegistry : public LeadCalibrationGuardTest, public testing::WithParamInterface<bool> {};

// A folder in the place of the lock file keeps even the superuser from writing.
TEST_P(UnwritableRegistry, IsReportedWithTheValueThatStillCounts) {
  const bool measuredBefore = GetParam();
  if (measuredBefore) Calibrate();
  Registry().Write(host::plugins::keld::kRegistryHive, "Software\\X", "a", "b");
  const auto lock = bench_.Only().Folder() / "registry.lock";
  std::filesystem::remove(lock);
  std::filesystem::create_directory(lock);
  AnswerWith("0.08,0,Ohm");
  Calibrate();
  EXPECT_FALSE(guard_.Value());
  ASSERT_EQ(reasons_.size(), 1U);
  EXPECT_THAT(reasons_[0], HasSubstr("80 mOhm was not stored for tester SIM-0001"));
  EXPECT_THAT(reasons_[0], HasSubstr("registry.lock"));
  EXPECT_THAT(reasons_[0], HasSubstr(measuredBefore ? "123 mOhm (measured 2026-11-22 14:03)"
                                                    : "0 mOhm, since no value is stored"));
  EXPECT_EQ(Stored(), measuredBefore ? 123 : -1);
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutAnEarlierValue, UnwritableRegistry, testing::Bool());

TEST_F(LeadCalibrationGuardTest, AValueThatIsNotReadBackIsNotStored) {
  Registry().StandIn(host::plugins::keld::kRegistryHive, host::plugins::keld::kLeadsKey, kSerial, "90");
  Calibrate();
  EXPECT_FALSE(guard_.Value());
  ASSERT_EQ(reasons_.size(), 1U);
  EXPECT_THAT(reasons_[0], HasSubstr("still corrected by 90 mOhm (date not known)"));
}

// The guide's own entry, in the middle of a run.
class GuideCalibrationTest : public LeadCalibrationGuardTest {
 protected:
  void RunWithCalibration() {
    bench_.Host().Elements()->AddPlugIn(bench_.PlugIn());
    const auto element = bench_.CreateTest(410);
    element->SetID(1);
    support::GuideOperator person(bench_.Application());
    person.guide = {host::plugins::keld::guide::kCalibrate};
    const auto dialogs = bench_.Application().FormShown().Subscribe([this](const auto& form) {
      if (form->Name() != host::plugins::keld::guide::kLeadsForm) return;
      form_ = form;
      bench_.Application().Post([this] { host::run::ClickButton(*form_, "cmdCalibrate"); });
      PressSave();
    });
    host::run::DocumentRunner(controller_, link_, stop_).Run({}, {element});
    bench_.Application().Forget(next_);
  }

  host::run::StopRequest stop_;
  host::run::DoubtTracker doubts_{*bench_.Ports().TheWire()};
  host::run::LinkWatch link_{bench_.Ports()};
  host::document::Runs runs_;
  std::shared_ptr<orvik::IStandardColl> standards_ =
      orvik::As<orvik::IStandardColl>(bench_.Host().CreateObject(orvik::HostClasses::kStandardColl));
  std::shared_ptr<orvik::IInstrumentColl> instruments_ =
      std::make_shared<host::instruments::InstrumentColl>();
  host::run::RunRecorder recorder_{{runs_, instruments_, standards_, doubts_}};
  std::shared_ptr<host::run::RunController> controller_ = std::make_shared<host::run::RunController>(
      host::run::RunController::Parts{standards_, instruments_, doubts_, recorder_, [] {}});
};

TEST_F(GuideCalibrationTest, StoresASoundValue) {
  RunWithCalibration();
  EXPECT_EQ(Stored(), 123);
  EXPECT_EQ(storedCount_, 1);
}

TEST_F(GuideCalibrationTest, RefusesWhatTestLeadsCannotHave) {
  AnswerWith("1.85,0,Ohm");
  RunWithCalibration();
  EXPECT_EQ(Stored(), -1);
  ASSERT_EQ(reasons_.size(), 1U);
  EXPECT_THAT(reasons_[0], HasSubstr("1850 mOhm is more than test leads have"));
}

}  // namespace
