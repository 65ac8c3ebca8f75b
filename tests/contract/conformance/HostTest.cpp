#include <limits>

#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/ILimitView.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/document/Runs.h"
#include "host/instruments/InstrumentColl.h"
#include "host/report/ReportObject.h"
#include "host/run/RunController.h"
#include "host/run/RunRecorder.h"
#include "tests/contract/checker-plugin/IHostChecker.h"
#include "tests/contract/conformance/Asked.h"
#include "tests/contract/conformance/Windows.h"

namespace conformance {
namespace {

/// The reference host, asked by a plug-in everything that a plug-in may ask.
class ReferenceHost : public testing::Test {
 protected:
  LoadedLibrary library_{CheckerPlugIn()};
  std::shared_ptr<check::IHostChecker> checker_ =
      library_.New<check::IHostChecker>(check::IHostChecker::kClassId);
};

void ExpectNone(const check::IHostChecker::Texts& findings) {
  for (const auto& finding : findings) ADD_FAILURE() << finding;
}

class ReferenceHostKeeps : public ReferenceHost, public testing::WithParamInterface<const char*> {};

TEST_P(ReferenceHostKeeps, TheContract) { ExpectNone(checker_->Check(GetParam())); }

INSTANTIATE_TEST_SUITE_P(Subjects, ReferenceHostKeeps,
                         testing::Values("classes", "elements", "container", "standards", "language", "XML",
                                         "registry", "records", "forms", "controls", "timers", "modality",
                                         "user controls", "composite controls", "limit view"));

TEST_F(ReferenceHost, HasASerialPort) {
  ExpectNone(checker_->Check("serial port", {"CHECK", nullptr, nullptr}));
  EXPECT_EQ(library_.Wire().Sent(), std::vector<std::string>{"IREM"}) << "what was refused must not be sent";
}

TEST_F(ReferenceHost, LogsErrors) {
  ExpectNone(checker_->Check("error log"));
  const auto lines = library_.ErrorLines();
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_NE(lines[0].find("CHECK\t0x8004A22C\t-2147179988\tCheckErrorLog\t3"), std::string::npos) << lines[0];
  EXPECT_NE(lines[1].find("7\t2.5\ttext with\\nline end\ta, b"), std::string::npos) << lines[1];
}

TEST_F(ReferenceHost, PrintsReports) {
  const auto report = std::make_shared<host::report::ReportObject>();
  ExpectNone(checker_->Check("report", {"", report, nullptr}));
  EXPECT_EQ(report->Tables().size(), 2U) << "a refused table must not be printed";
  std::string text;
  for (const auto& table : report->Tables()) {
    for (const auto& row : table.rows) {
      for (const auto& cell : row) text += host::report::PlainText(cell) + "\n";
    }
  }
  EXPECT_NE(text.find("a|b;c{d}e\\f"), std::string::npos) << text;
  EXPECT_NE(text.find("<b>&amp;"), std::string::npos) << text;
}

/// A run as `orvik-bench` has it.
class ReferenceRun : public ReferenceHost {
 protected:
  ReferenceRun() {
    const auto standard = library_.New<orvik::IStandard>(orvik::HostClasses::kStandard);
    standard->Initialize("IEC 62353", "class I", 1);
    standards_->Add(standard);
  }

  host::serial::Wire wire_;
  host::run::DoubtTracker doubts_{wire_};
  std::shared_ptr<orvik::IStandardColl> standards_ =
      library_.New<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
  std::shared_ptr<host::instruments::InstrumentColl> instruments_ =
      std::make_shared<host::instruments::InstrumentColl>();
  host::document::Runs runs_;
  host::run::RunRecorder recorder_{{runs_, instruments_, standards_, doubts_}};
  int saved_ = 0;
  std::shared_ptr<host::run::RunController> controller_ = std::make_shared<host::run::RunController>(
      host::run::RunController::Parts{standards_, instruments_, doubts_, recorder_, [this] { ++saved_; }});
};

TEST_F(ReferenceRun, ControlsRuns) {
  ExpectNone(checker_->Check("run controller", {"", nullptr, controller_}));
  EXPECT_EQ(controller_->Asked(), orvik::Navigation::kNotApplicable);
  EXPECT_EQ(saved_, 2) << "each finished element is saved";
  EXPECT_EQ(controller_->orvik::IRunController::Standards(), standards_);
  EXPECT_EQ(instruments_->Count(), 1);
}

TEST_F(ReferenceRun, RejectsUnknownNavigationRequests) {
  orvik::IRunController& controller = *controller_;
  controller.NavigationRequest(3);
  for (const std::int32_t code : {-1, 5, std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_EQ(ErrorNumberOf([&] { controller.NavigationRequest(code); }), orvik::HostError::kInvalidArgument);
  }
  EXPECT_EQ(controller_->Asked(), orvik::Navigation::kSkip);
}

TEST_F(ReferenceRun, RunsAPlugInsElement) {
  const auto element = library_.NewTest();
  std::vector<std::string> heard;
  const auto started = controller_->Started().Subscribe(
      [&](const auto& which) { heard.push_back(which == element ? "started" : "another started"); });
  const auto finished = controller_->Finished().Subscribe(
      [&](const auto& which) { heard.push_back(which == element ? "finished" : "another finished"); });
  const auto shown = library_.Application().FormShown().Subscribe(
      [&](const auto& form) { library_.Application().Post([form] { Click(*form, "cmdUndamaged"); }); });
  ASSERT_TRUE(controller_->Begin({}, {element}));
  element->Perform(controller_);
  EXPECT_EQ(heard, (std::vector<std::string>{"started", "finished"}));
  ASSERT_TRUE(element->Result());
  EXPECT_EQ(element->Result()->Status(), 1);
  EXPECT_EQ(controller_->Asked(), orvik::Navigation::kNext);
  EXPECT_EQ(saved_, 2) << "the beginning and the finished element";
  ASSERT_EQ(runs_.All().size(), 1U);
  ASSERT_EQ(runs_.All()[0].steps.size(), 2U);
  const auto& test = std::get<host::document::RecordedTest>(runs_.All()[0].steps[1]);
  EXPECT_EQ(test.element, element->ID());
  EXPECT_EQ(test.testId, element->TestID());
  EXPECT_EQ(test.status, 1);
  EXPECT_EQ(test.by, host::document::RecordedTest::By::kTester);
}

/// The host's limit view on limits of the plug-in's own, edited by hand.
TEST(ReferenceLimitView, NotifiesItsCallBackOfAnEdit) {
  class Ear final : public orvik::ICallBack {
   public:
    std::vector<std::string> heard;

   private:
    std::string IObject_ClassID() const override { return {}; }
    void ICallBack_Notify(const std::string& text) override { heard.push_back(text); }
  };
  LoadedLibrary library(KeldPlugIn());
  const auto element = library.NewTest(410);
  const auto standard = element->Limits()->CreateStandard("IEC 62353", "class I");
  const auto form = library.Application().CreateForm("FLimits");
  form->Show();
  const auto site = form->AddControl(orvik::HostClasses::kLimitView, "isc");
  const auto view = orvik::As<orvik::ILimitView>(site->Object());
  const auto ear = std::make_shared<Ear>();
  view->SetCallBack(ear);
  view->InitializeView("NO LIMIT KEY", "KELD test", "mOhm", "mOhm;%");
  view->Initialize(element->Limits(), {}, {}, {});
  EXPECT_TRUE(ear->heard.empty());
  Find<orvik::platform::ITextBox>(*site->Panel(), "txtHigh")->TypeOver("300");
  ASSERT_TRUE(Click(*site->Panel(), "cmdApply"));
  EXPECT_EQ(standard->Limit(1)->HighText(), "300");
  ASSERT_FALSE(ear->heard.empty());
  EXPECT_EQ(ear->heard.back(), "Change");
  form->Unload();
}

TEST_F(ReferenceHost, RejectsFilesThatAreNotPlugIns) {
  auto& host = library_.Host();
  for (const std::string path : {"/", "no such file", "/dev/null", CATALOGUE_PATH}) {
    EXPECT_EQ(ErrorNumberOf([&] { host.OpenPlugIn(path); }), orvik::HostError::kClassNotRegistered) << path;
  }
}

}  // namespace
}  // namespace conformance
