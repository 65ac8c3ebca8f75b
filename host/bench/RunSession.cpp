#include "host/bench/RunSession.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/bench/InputError.h"
#include "host/bench/StoredLeadsNotice.h"
#include "host/document/Document.h"
#include "host/document/ElementText.h"
#include "host/document/ElementWalk.h"
#include "host/elements/ElementFactory.h"
#include "host/instruments/InstrumentColl.h"
#include "host/judge/CaseOf.h"
#include "host/run/LeadCalibrations.h"
#include "host/run/OperatorEvents.h"

namespace host::bench {

using Element = std::shared_ptr<orvik::ITestElement>;

namespace {

/// The number of single tests in each of the elements.
std::vector<std::size_t> TestsOfEach(const std::vector<Element>& elements) {
  std::vector<std::size_t> tests;
  for (const auto& top : elements) {
    tests.push_back(0);
    document::WalkElements(top, [&](const Element& element) {
      if (!orvik::As<orvik::ITestContainer>(element)) ++tests.back();
    });
  }
  return tests;
}

run::RunRecorder::Heading HeadingOf(const Workbench& workbench, const document::Document& document,
                                    const TesterConnection& tester, const std::string& by) {
  run::RunRecorder::Heading heading;
  heading.equipment = document.equipment;
  heading.by = by;
  heading.port = tester.Device();
  heading.program = "orvik-bench " ORVIK_VERSION;
  heading.simulated = tester.Simulated();
  heading.timeScale = workbench.TimeScale();
  return heading;
}

}  // namespace

void RequireOneKindOfRuns(const document::Document& document, bool simulated) {
  const auto& runs = document.Runs().All();
  if (runs.empty() || runs.front().simulated == simulated) return;
  throw InputError(simulated
                       ? Tr("%%1 holds runs on a real tester; simulated ones need a document of their own "
                            "(\"orvik-bench new FILE --from %%1\")",
                            {document.Path().string()})
                       : Tr("%%1 holds simulated runs; runs on a real tester need a document of their own "
                            "(\"orvik-bench new FILE --from %%1\")",
                            {document.Path().string()}));
}

RunSession::RunSession(Workbench& workbench, document::Document& document, serial::WireLog& log,
                       RunReporter& reporter, const TesterConnection& tester, const std::string& by)
    : workbench_(workbench),
      document_(document),
      log_(log),
      reporter_(reporter),
      heading_(HeadingOf(workbench, document, tester, by)),
      doubts_(*workbench.Ports().TheWire()),
      link_(workbench.Ports()),
      stopProgress_(*workbench.Ports().TheWire(), *workbench.Application(), workbench.TimeScale()),
      recorder_(run::RunRecorder::Parts{
          document.Runs(), document.Instruments(), document.Standards(), doubts_, LocalTimeText,
          [&workbench](const std::string& serial, std::int32_t leads) {
            return run::LeadsMeasured(*workbench.Host()->Registry(), serial, leads).value_or("");
          }}),
      controller_(std::make_shared<run::RunController>(
          run::RunController::Parts{document.Standards(), document.Instruments(), doubts_, recorder_,
                                    [&document] { document.Save(); }})),
      runner_(controller_, link_, stop_) {
  RequireOneKindOfRuns(document, heading_.simulated);
  Listen();
}

void RunSession::Listen() {
  heard_.push_back(workbench_.Ports().TheWire()->Subscribe([this](const serial::WireRecord& record) {
    log_.Write(record);
    reporter_.Wire(record);
  }));
  heard_.push_back(doubts_.Noted().Subscribe(
      [this](std::int32_t element, const document::Reason& doubt) { reporter_.Doubted(element, doubt); }));
  heard_.push_back(controller_->Started().Subscribe(
      [this](const Element& element) { reporter_.Started(Judged(*element)); }));
  heard_.push_back(controller_->Finished().Subscribe(
      [this](const Element& element) { reporter_.Finished(Judged(*element)); }));
  heard_.push_back(
      runner_.Reached().Subscribe([this](std::size_t place, std::size_t count, const Element& element) {
        reached_ = element;
        reporter_.Reached(place, count);
      }));
}

std::string RunSession::ReachedTest() const {
  return std::to_string(reached_->TestID()) + " " +
         host::VisibleText(document::ElementName(*reached_, *workbench_.Host()->Elements()));
}

judge::JudgedElement RunSession::Judged(const orvik::ITestElement& element) const {
  const auto judged = judge::Judge(document_, *workbench_.Host()->Elements(), standards_);
  const auto* found = judged.Find(element.ID());
  return found ? *found : judge::JudgedElement{};
}

run::DocumentRunner::End RunSession::Run(const std::vector<Element>& elements,
                                         std::unique_ptr<run::IOperator> runOperator) {
  reporter_.Planned(TestsOfEach(elements));
  const StoredLeadsNotice leads(*workbench_.Ports().TheWire(), *workbench_.Host()->Registry(), elements,
                                [this](const std::string& text) { reporter_.Remark(text); });
  const run::OperatorEvents operating(workbench_.Application(), stop_, std::move(runOperator));
  return runner_.Run(heading_, elements);
}

void RunSession::AskToStop() {
  if (stopProgress_.Begun()) return reporter_.Remark(stopProgress_.Text());
  reporter_.Remark(Tr("Stopping: the running test is dropped and the session with the tester closed."));
  stopProgress_.Begin();
  // Its dialog is in front of the guide and would block it.
  workbench_.Leads().Cancel();
  stop_.Ask();
}

}  // namespace host::bench
