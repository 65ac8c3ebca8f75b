#include "host/app/run/RunSession.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/app/run/AskOperator.h"
#include "host/app/run/ScreenOperator.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/instruments/InstrumentColl.h"
#include "host/run/AutoOperator.h"
#include "host/run/ElementWalk.h"
#include "host/services/Tr.h"

namespace bench {

using Element = std::shared_ptr<orvik::ITestElement>;

namespace {

/// How many single tests stand in each of the elements.
std::vector<std::size_t> TestsOfEach(const std::vector<Element>& elements) {
  std::vector<std::size_t> tests;
  for (const auto& top : elements) {
    tests.push_back(0);
    WalkElements(top, [&](const Element& element) {
      if (!orvik::As<orvik::ITestContainer>(element)) ++tests.back();
    });
  }
  return tests;
}

}  // namespace

RunSession::RunSession(Workbench& workbench, Document& document, WireLog& log, RunReporter& reporter,
                       OperatorKind kind, const std::string& by)
    : workbench_(workbench),
      document_(document),
      log_(log),
      reporter_(reporter),
      kind_(kind),
      doubts_(*workbench.Ports().TheWire()),
      link_(workbench.Ports()),
      stopProgress_(*workbench.Ports().TheWire(), *workbench.Application(), workbench.TimeScale()),
      controller_(std::make_shared<RunController>(
          RunController::Parts{document.Standards(), document.Instruments(), *workbench.Host()->Elements(),
                               doubts_, [&document] { document.Save(); }, LocalTimeText, by})),
      runner_(controller_, link_, stop_) {
  Listen();
}

void RunSession::Listen() {
  const auto summary = [this](const Element& element) {
    return Summarise({element}, *workbench_.Host()->Elements(), document_.Standards()).front();
  };
  heard_.push_back(workbench_.Ports().TheWire()->Subscribe([this](const WireRecord& record) {
    log_.Write(record);
    reporter_.Wire(record);
  }));
  heard_.push_back(doubts_.Noted().Subscribe(
      [this](std::int32_t element, const std::string& doubt) { reporter_.Doubted(element, doubt); }));
  heard_.push_back(controller_->Started().Subscribe(
      [this, summary](const Element& element) { reporter_.Started(summary(element)); }));
  heard_.push_back(controller_->Finished().Subscribe(
      [this, summary](const Element& element) { reporter_.Finished(summary(element)); }));
  heard_.push_back(runner_.Reached().Subscribe(
      [this](std::size_t place, std::size_t count, const Element&) { reporter_.Reached(place, count); }));
}

DocumentRunner::End RunSession::Run(const std::vector<Element>& elements) {
  reporter_.Planned(TestsOfEach(elements));
  const auto person = MakeOperator();
  return runner_.Run(elements);
}

std::unique_ptr<IOperator> RunSession::MakeOperator() {
  const auto& application = workbench_.Application();
  if (kind_ == OperatorKind::kTerminal) return std::make_unique<AskOperator>(application, stop_, reporter_);
  if (kind_ == OperatorKind::kScreen) return std::make_unique<ScreenOperator>(application, stop_);
  auto program = std::make_unique<AutoOperator>(application, stop_);
  heard_.push_back(
      program->Prompted().Subscribe([this](const std::string& text) { reporter_.Prompted(text); }));
  return program;
}

void RunSession::AskToStop() {
  if (stopProgress_.Begun()) return reporter_.Remark(stopProgress_.Text());
  reporter_.Remark(Tr("Stopping: the running test is dropped and the session with the tester closed."));
  stopProgress_.Begin();
  stop_.Ask();
}

}  // namespace bench
