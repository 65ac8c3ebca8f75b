#include "host/app/RunSession.h"

#include "host/app/AskOperator.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/instruments/InstrumentColl.h"
#include "host/run/AutoOperator.h"
#include "host/run/StopSignals.h"

namespace bench {

using Element = std::shared_ptr<orvik::ITestElement>;

RunSession::RunSession(Workbench& workbench, Document& document, WireLog& log, RunReporter& reporter,
                       bool ask)
    : workbench_(workbench),
      document_(document),
      log_(log),
      reporter_(reporter),
      ask_(ask),
      doubts_(*workbench.Ports().TheWire()),
      link_(workbench.Ports()),
      controller_(std::make_shared<RunController>(
          RunController::Parts{document.Standards(), document.Instruments(), *workbench.Host()->Elements(),
                               doubts_, [&document] { document.Save(); }})),
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
  const StopSignals signals(*workbench_.Application(), [this](int signal) { StopAsked(signal); });
  if (ask_) {
    const AskOperator person(workbench_.Application(), stop_, reporter_);
    return runner_.Run(elements);
  }
  AutoOperator person(workbench_.Application(), stop_);
  const auto prompted =
      person.Prompted().Subscribe([this](const std::string& text) { reporter_.Prompted(text); });
  return runner_.Run(elements);
}

void RunSession::StopAsked(int) {
  reporter_.Remark(stop_.Asked()
                       ? "Already stopping: the session with the tester is being closed."
                       : "Stopping: the running test is dropped and the session with the tester closed.");
  stop_.Ask();
}

}  // namespace bench
