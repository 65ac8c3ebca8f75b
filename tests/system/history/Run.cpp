#include "tests/system/history/Run.h"

#include "host/bench/RunSelection.h"
#include "host/bench/RunSession.h"
#include "host/report/DocumentView.h"
#include "host/run/AutoOperator.h"
#include "host/run/OperatorEvents.h"
#include "tests/system/history/Person.h"

namespace history {
namespace {

std::vector<int> IdentifiersOf(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements) {
  std::vector<int> identifiers;
  for (const auto& element : elements) identifiers.push_back(element->ID());
  return identifiers;
}

void TellOfWire(const host::serial::WireRecord& record, RunWatch& watch) {
  using What = host::serial::WireRecord::Kind;
  const auto at = std::chrono::duration_cast<RunWatch::Time>(record.time);
  switch (record.kind) {
    case What::kOpened:
      return watch.PortOpened();
    case What::kSent:
      return watch.Sent(std::string(record.text), record.replyWaiting, at);
    case What::kReceived:
      return watch.Received(std::string(record.text), at);
    case What::kDropped:
      return watch.Dropped();
    case What::kFailed:
    case What::kClosed:
      return watch.PortClosed();
  }
}

}  // namespace

std::optional<std::string> RunOf::Perform(const Operation& operation, World& world) {
  const auto& run = operation.run;
  if (run.newProgram) {
    keld::MKELDGlobalVars::InstrumentDataSlot().reset();
    world.leadsInUse = world.LeadsOf(world.lastSerial);
  }
  const auto document = host::document::Document::Open(bench_.Only().SharedHost(), folder_ + operation.file);
  host::bench::RequireOneKindOfRuns(*document, run.simulated);
  const auto elements = Selected(operation, *document);
  const auto tester =
      std::make_shared<TrueTester>(world, world.documents.at(operation.file).plan.equipment, run.tester);
  bench_.Tester().PlugIn();
  bench_.Tester().UseFaults(tester);
  RunWatch watch(world, operation.file, run, IdentifiersOf(elements), *tester);
  RunElements(run, elements, *document, watch);
  LetTimePass();
  bench_.Tester().UseFaults(nullptr);
  bench_.Wire().Clear();
  return watch.Offence();
}

RunOf::Elements RunOf::Selected(const Operation& operation, host::document::Document& document) {
  host::bench::RunSelection selection;
  selection.file = operation.file;
  selection.elements.assign(operation.run.elements.begin(), operation.run.elements.end());
  selection.standards = operation.run.standards;
  selection.resume = operation.run.resume;
  const auto selected = host::bench::SelectedElements(document, selection);
  host::bench::SelectStandards(document, bench_.Host(), selection);
  if (!selection.resume) return selected;
  return host::bench::Unfinished(selected, document, host::report::ViewOf(document, bench_.Host()).judged);
}

void RunOf::RunElements(const RunSetup& run, const Elements& elements, host::document::Document& document,
                        RunWatch& watch) {
  support::RunParts parts(bench_.Ports(), document);
  parts.heading.simulated = run.simulated;
  int saves = 0;
  parts.save = [&] {
    const bool killed = run.killedAfterSaves && saves >= *run.killedAfterSaves;
    if (!killed) document.Save();
    watch.Saved(run.killedAfterSaves && ++saves >= *run.killedAfterSaves);
  };
  const auto told = Tell(parts, watch);
  const auto application = bench_.Only().SharedApplication();
  const bool byProgram = run.presses.empty() && !run.abortAt;
  auto person = std::make_unique<Person>(application, run.presses, [&](Press press, bool inWaitingGuide) {
    if (press == Press::kNotApplicable) watch.SetAside(Record::How::kNotApplicable);
    if (press == Press::kSkip) watch.SetAside(Record::How::kSkipped);
    if (press == Press::kAbort) watch.Aborted(inWaitingGuide);
  });
  auto* const aborting = person.get();
  std::unique_ptr<host::run::IOperator> runOperator = std::move(person);
  if (byProgram) runOperator = std::make_unique<host::run::AutoOperator>(application, parts.stop);
  const host::run::OperatorEvents operating(application, parts.stop, std::move(runOperator));
  int calls = 0;
  const auto pumped = bench_.Application().Pumped().Subscribe([&] {
    const int call = calls++;
    if (byProgram && run.stopAt == call) {
      watch.Stopped();
      parts.stop.Ask();
    }
    if (!byProgram && run.abortAt == call) aborting->Abort();
  });
  parts.Run(elements);
}

std::vector<orvik::platform::Subscription> RunOf::Tell(support::RunParts& parts, RunWatch& watch) {
  using Told = std::shared_ptr<orvik::ITestElement>;
  std::vector<orvik::platform::Subscription> told;
  told.push_back(bench_.Ports().TheWire()->Subscribe(
      [&watch](const host::serial::WireRecord& record) { TellOfWire(record, watch); }));
  told.push_back(
      parts.controller->Started().Subscribe([&watch](const Told& element) { watch.Started(element->ID()); }));
  told.push_back(parts.controller->Finished().Subscribe(
      [&watch](const Told& element) { watch.Finished(element->ID()); }));
  told.push_back(parts.runner.Reached().Subscribe(
      [&watch](std::size_t, std::size_t, const Told& element) { watch.Reached(element->ID()); }));
  return told;
}

/// Waits for late events, so that they do not enter the next run.
void RunOf::LetTimePass() {
  const auto end = bench_.Application().Now() + std::chrono::minutes(1);
  while (bench_.Application().Now() < end) bench_.Application().WaitMessages(end);
}

}  // namespace history
