#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <utility>

#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IPlugIn.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "host/report/ReportObject.h"
#include "instrument/FCalibrateLeads.h"
#include "model/CKELDTestElement.h"
#include "results/CKELDResultData.h"
#include "tests/system/leaks/Allocations.h"
#include "tests/system/leaks/Stage.h"
#include "ui/FPretestPrompt.h"
#include "ui/FYesNoPrompt.h"

// A run frees all that it creates. Two checks: weak references to every visible object, and the allocated
// memory before and after, to the byte.
namespace leaks {
namespace {

namespace platform = orvik::platform;
using support::GuideOperator;
using Kinds = std::set<std::string>;

void Click(const platform::IPanel& panel, const std::string& button) {
  orvik::Required(orvik::As<platform::IButton>(panel.Find(button))).Click();
}

/// Opens a dialog of an element as a host does, and closes it.
void OpenDialog(Stage& stage, const std::shared_ptr<orvik::IDialog>& dialog, bool docked) {
  ASSERT_TRUE(dialog);
  stage.See("dialog", dialog);
  const auto form = orvik::As<orvik::IDialogForm>(dialog)->Form();
  stage.See("dialog window", form);
  const auto frame = stage.bench.Application().CreateForm("FFrame");
  frame->Show();
  if (docked) {
    dialog->Dock(frame->Handle());
    dialog->Show();
    dialog->Move(0, 0, 6000, 4000);
  } else {
    form->Show();
  }
  dialog->Refresh();
  // The own window of a docked dialog is not loaded.
  stage.SeeWindow(form);
  if (docked) dialog->UnDock();
  dialog->Unload();
  frame->Unload();
}

void OpenEveryDialog(Stage& stage, bool docked) {
  for (const bool sequence : {false, true}) {
    auto& element = sequence ? stage.PlaceSequence() : stage.PlaceTest();
    OpenDialog(stage, element.Configuration()->CreateDialog(), docked);
    OpenDialog(stage, element.Limits()->CreateDialog(), docked);
    const auto result = keld::results::CKELDResultData::Create();
    result->SetComment("lead worn");
    stage.See("result", result);
    OpenDialog(stage, result->CreateDialog(), docked);
  }
}

/// Operates the calibration window once it opens.
void Calibrate(Stage& stage) {
  const auto dialog = keld::instrument::FCalibrateLeads::Create();
  stage.See("calibration", dialog);
  const auto form = orvik::As<orvik::IDialogForm>(dialog)->Form();
  auto& application = stage.bench.Application();
  const auto at = [&](std::chrono::seconds when, const char* button) {
    application.CallAt(application.Now() + when, [form, button] { Click(*form, button); });
  };
  at(std::chrono::seconds(1), "cmdCalibrate");
  at(std::chrono::seconds(100), "cmdSave");
  dialog->ShowModal(nullptr);
  EXPECT_FALSE(dialog->Cancelled());
  dialog->Unload();
}

void SaveLoadAndClone(Stage& stage) {
  for (const bool sequence : {false, true}) {
    auto& element = sequence ? stage.PlaceSequence() : stage.PlaceTest();
    stage.Perform();
    const auto document = stage.New<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
    const auto node = element.Save(document->CreateRoot("Document"));
    ASSERT_TRUE(node);
    std::shared_ptr<orvik::ITestElement> loaded;
    if (sequence)
      loaded = keld::model::CKELDSequence::Create();
    else
      loaded = keld::model::CKELDTestElement::Create();
    loaded->Load(node, nullptr);
    EXPECT_TRUE(loaded->Result());
    auto clone = loaded->Clone();
    EXPECT_TRUE(clone->Result());
    const auto report = std::make_shared<host::report::ReportObject>();
    clone->PrintReport(report, nullptr);
    EXPECT_FALSE(report->Tables().empty());
    for (const auto& copy : {loaded, clone}) {
      stage.element = copy;
      stage.Look();
    }
  }
}

void Prompts(Stage& stage) {
  for (const bool modal : {false, true}) {
    const auto question = keld::ui::FYesNoPrompt::Create();
    const auto instruction = keld::ui::FPretestPrompt::Create();
    stage.See("yes/no prompt", question);
    stage.See("pre-test prompt", instruction);
    question->SetPrompt("20999::Go on?");
    instruction->SetPrompt("Connect the lead.", "tag");
    if (modal) {
      // The simulated operator answers both.
      question->ShowModal();
      instruction->ShowModal();
    } else {
      question->Show();
      instruction->Show();
      stage.Look();
    }
  }
}

struct Scenario {
  const char* name;
  std::function<void(Stage&)> act;
  /// Kinds of objects that it must create.
  Kinds creates;
};

void PrintTo(const Scenario& scenario, std::ostream* out) { *out << scenario.name; }

const Kinds kRun{"element",        "base element",
                 "information",    "configuration",
                 "limit data",     "standards",
                 "standard",       "limit",
                 "result",         "link",
                 "guide",          "window FTestGuide",
                 "run controller", "control lvwResults"};

Kinds RunAnd(Kinds more) {
  more.insert(kRun.begin(), kRun.end());
  return more;
}

const std::vector<Scenario>& Scenarios() {
  constexpr int kMidway = 4;
  static const std::vector<Scenario> all{
      {"SingleRun",
       [](Stage& stage) {
         stage.PlaceTest();
         stage.Perform();
         EXPECT_EQ(stage.element->Result()->Status(), 1);
       },
       RunAnd({"measurement", "service record"})},
      {"FailedRun",
       [](Stage& stage) {
         stage.PlaceTest().Limits()->Standards()->item(1)->Limit(1)->SetBounds("", "1");
         stage.Perform();
         EXPECT_EQ(stage.element->Result()->Status(), 2);
       },
       RunAnd({"measurement", "service record"})},
      {"RunTwice",
       [](Stage& stage) {
         stage.PlaceTest();
         stage.person->guide = {GuideOperator::kPlay, GuideOperator::kPlay};
         stage.Perform();
         stage.Perform();
         EXPECT_EQ(stage.element->Result()->Status(), 1);
       },
       RunAnd({"measurement", "service record"})},
      {"SequenceWithANestedOne",
       [](Stage& stage) {
         stage.PlaceSequence();
         stage.Perform();
         EXPECT_NE(stage.element->Result()->Status(), 0);
       },
       RunAnd({"measurement", "service record"})},
      {"Stopped",
       [](Stage& stage) {
         stage.PlaceTest();
         stage.PerformWith(kMidway, [&] { stage.person->Press(GuideOperator::kStop); });
         EXPECT_EQ(stage.element->Result()->Status(), 0);
       },
       kRun},
      {"StoppedSequence",
       [](Stage& stage) {
         stage.PlaceSequence();
         stage.PerformWith(kMidway, [&] { stage.person->Press(GuideOperator::kStop); });
         EXPECT_EQ(stage.element->Result()->Status(), 0);
       },
       kRun},
      {"Aborted",
       [](Stage& stage) {
         stage.PlaceTest();
         stage.PerformWith(kMidway, [&] { stage.person->Press(GuideOperator::kAbort); });
         EXPECT_EQ(stage.element->Result()->Status(), 4);
       },
       RunAnd({"window FYesNoPrompt"})},
      {"AbortedSequence",
       [](Stage& stage) {
         stage.PlaceSequence();
         stage.PerformWith(kMidway, [&] { stage.person->Press(GuideOperator::kAbort); });
         EXPECT_EQ(stage.element->Result()->Status(), 0);
       },
       RunAnd({"window FYesNoPrompt"})},
      {"ClosedByItsCross",
       [](Stage& stage) {
         stage.PlaceTest();
         stage.PerformWith(kMidway, [&] { stage.person->CloseGuide(); });
       },
       RunAnd({"window FYesNoPrompt"})},
      {"ReleasedWhileItRuns",
       [](Stage& stage) {
         stage.PlaceSequence();
         stage.PerformWith(kMidway, [&] {
           stage.Look();
           stage.element.reset();
         });
       },
       kRun},
      {"Refused",
       [](Stage& stage) {
         stage.PlaceTest();
         stage.controller->mayStart = [](const auto&) { return false; };
         stage.Perform();
         EXPECT_EQ(stage.person->guidesShown, 0);
       },
       {"element", "limit data", "result"}},
      {"RefusedInTheGuide",
       [](Stage& stage) {
         stage.PlaceSequence();
         int asked = 0;
         stage.controller->mayStart = [&asked](const auto&) { return ++asked != 2; };
         stage.Perform();
         EXPECT_EQ(stage.person->guidesShown, 1);
       },
       {"element", "guide", "window FTestGuide"}},
      {"HostThatFails",
       [](Stage& stage) {
         stage.PlaceSequence();
         int asked = 0;
         stage.controller->mayStart = [&asked](const auto&) -> bool {
           if (++asked > 2) throw orvik::HostError(5, "controller", "no");
           return true;
         };
         stage.Perform();
       },
       {"element", "guide", "window FTestGuide"}},
      {"NoPort",
       [](Stage& stage) {
         stage.bench.Unassign();
         stage.PlaceTest();
         stage.Perform();
         EXPECT_EQ(stage.element->Result()->Status(), 0);
       },
       {"element", "guide", "window FTestGuide"}},
      {"MuteTester",
       [](Stage& stage) {
         stage.bench.Line().AnswerBy([](const std::string&) {});
         stage.PlaceTest();
         stage.Perform();
         EXPECT_EQ(stage.person->prompts.size(), 1U);
       },
       RunAnd({"window FPretestPrompt"})},
      {"CableIsPulled",
       [](Stage& stage) {
         stage.PlaceSequence();
         stage.PerformWith(kMidway, [&] { stage.bench.Line().Unplug(); });
       },
       kRun},
      {"TestNotSupported",
       [](Stage& stage) {
         stage.bench.Line().AnswerBy([&](const std::string& command) {
           stage.bench.Line().Reply(command == "IREM"   ? "irem,KELD(IN),0815,2.1"
                                    : command == "EREM" ? "erem"
                                                        : "ERRM,6002");
         });
         stage.PlaceTest();
         stage.Perform();
         EXPECT_EQ(stage.element->Result()->Status(), 3);
       },
       RunAnd({"service record", "window FPretestPrompt"})},
      {"SetAside",
       [](Stage& stage) {
         for (const int command : {GuideOperator::kNotApplicable, GuideOperator::kSkip,
                                   GuideOperator::kPrevious, GuideOperator::kNext}) {
           stage.PlaceTest();
           stage.person->guide = {command};
           stage.Perform();
         }
       },
       {"element", "guide", "window FTestGuide", "service record"}},
      {"Calibration", Calibrate, {"calibration", "window FCalibrateLeads"}},
      {"CalibrationFromTheGuide",
       [](Stage& stage) {
         constexpr int kCalibrate = 900;
         stage.PlaceTest();
         auto& application = stage.bench.Application();
         const auto opened = application.FormShown().Subscribe([&](const auto& form) {
           if (form->Name() == "FCalibrateLeads") application.Post([form] { Click(*form, "cmdCancel"); });
         });
         stage.person->guide = {kCalibrate, GuideOperator::kPlay};
         stage.Perform();
       },
       RunAnd({"measurement", "window FCalibrateLeads"})},
      {"SetUpDialogs",
       [](Stage& stage) { OpenEveryDialog(stage, false); },
       {"dialog", "dialog window", "user control isc", "control txtComment", "control lvwLimits"}},
      {"DockedSetUpDialogs",
       [](Stage& stage) { OpenEveryDialog(stage, true); },
       {"dialog", "dialog window", "user control isc", "control txtComment", "control lvwLimits"}},
      {"DialogsThatNobodyPutsAway",
       [](Stage& stage) {
         stage.PlaceTest();
         for (const auto& dialog :
              {stage.element->Configuration()->CreateDialog(), stage.element->Limits()->CreateDialog()}) {
           stage.See("dialog", dialog);
           orvik::As<orvik::IDialogForm>(dialog)->Form()->Show();
           stage.Look();
         }
       },
       {"dialog", "window FElementSetup"}},
      {"Prompts",
       Prompts,
       {"yes/no prompt", "pre-test prompt", "window FYesNoPrompt", "window FPretestPrompt"}},
      {"SavedLoadedAndCloned", SaveLoadAndClone, RunAnd({"measurement", "service record"})},
      {"CatalogueReadAgain",
       [](Stage& stage) {
         const auto plugIn = stage.New<orvik::IPlugIn>(keld::ClassIdentifiers::kPlugin);
         for (int round = 0; round < 2; ++round) {
           plugIn->Initialize(nullptr);
           stage.element = orvik::As<orvik::ITestElement>(plugIn->Tests());
           stage.Look();
         }
       },
       {"element", "base element", "limit data", "OrvikTypeLib.TestContainer", "orvikKELD.CKELDPlugin"}},
  };
  return all;
}

class LeakTest : public testing::TestWithParam<Scenario> {};

TEST_P(LeakTest, RunFreesItsObjects) {
  Stage stage;
  // The catalogue and the shared objects live until the library is closed.
  stage.Watched(GetParam().act);
  const auto watched = stage.Watched(GetParam().act);
  EXPECT_EQ(watched.Alive(), std::vector<std::string>());
  EXPECT_TRUE(stage.bench.Application().Forms().empty());
  const auto kinds = watched.Kinds();
  for (const auto& kind : GetParam().creates) EXPECT_TRUE(kinds.contains(kind)) << "never seen: " << kind;
}

TEST_P(LeakTest, RunsFreeTheirMemory) {
  Stage stage;
  // Creates what lives as long as the process, and buffers that grow once.
  for (int round = 0; round < 3; ++round) stage.Watched(GetParam().act);
  const Held before = HeldNow();
  for (int round = 1; round <= 4; ++round) {
    stage.Watched(GetParam().act);
    const Held after = HeldNow();
    ASSERT_EQ(after, before) << "round " << round;
  }
}

INSTANTIATE_TEST_SUITE_P(Runs, LeakTest, testing::ValuesIn(Scenarios()),
                         [](const auto& scenario) { return scenario.param.name; });

TEST(WholeBench, FreesItsMemory) {
  const auto bench = [] {
    Stage stage;
    stage.Watched([](Stage& placed) {
      placed.PlaceSequence();
      placed.Perform();
    });
  };
  for (int round = 0; round < 2; ++round) bench();
  const Held before = HeldNow();
  bench();
  EXPECT_EQ(HeldNow(), before);
}

}  // namespace
}  // namespace leaks
