#include "tests/system/soak/SoakBench.h"

#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/serial/WireLog.h"
#include "instrument/CKELDData.h"
#include "tester/FaultScript.h"
#include "tester/SeededFaults.h"
#include "tests/support/RunParts.h"

namespace soak {

namespace {

/// The tester of one run: its readings and faults.
class RunFaults final : public sim::Faults {
 public:
  explicit RunFaults(const Plan& plan) : truth_(plan.truth) {
    if (!plan.script.empty()) faults_ = std::make_unique<sim::FaultScript>(plan.script, "the plan");
    if (plan.faultRate > 0)
      faults_ = std::make_unique<sim::SeededFaults>(plan.seed, plan.faultRate, sim::SeededFaults::Listener());
  }

 private:
  void OnReply(const sim::Exchange& exchange, sim::Reply& reply) override {
    for (const auto& [testId, milliohms] : truth_) {
      if (reply.lines.front().bytes.starts_with("gres," + std::to_string(testId) + ","))
        reply.lines.front().bytes = ReplyTo(testId, milliohms) + "\r\n";
    }
    if (faults_) faults_->OnReply(exchange, reply);
  }

  const std::map<int, int> truth_;
  std::unique_ptr<sim::Faults> faults_;
};

/// The tester's identity is kept for the whole process, and a text keeps the capacity of its longest content.
/// Each gets that capacity at the start, so that a garbled identity later on allocates nothing.
void GiveTextsRoom() {
  const std::string text(40, 'x');
  keld::instrument::CKELDData::Shared()->TakeIdentity({text, text, text, {}, {}});
}

}  // namespace

SoakBench::SoakBench() {
  GiveTextsRoom();
  bench_.Host().Elements()->AddPlugIn(bench_.PlugIn());
  Prepare(Kind::kTest);
  Prepare(Kind::kSequence);
}

SoakBench::~SoakBench() { bench_.Host().Elements()->ReleasePlugIns(); }

std::filesystem::path SoakBench::Prepared(Kind kind) {
  return bench_.Only().Folder() / (kind == Kind::kTest ? "test.orvik" : "sequence.orvik");
}

void SoakBench::Prepare(Kind kind) {
  const auto document = host::document::Document::Create(bench_.Only().SharedHost(), Prepared(kind));
  document->AddTest(kind == Kind::kTest ? 410 : 400);
  for (const std::int32_t id : kind == Kind::kTest ? std::vector{1} : std::vector{2, 3})
    support::SetLimit(*document, bench_.Host(), id, "", std::to_string(kHighest));
  document->Save();
}

Evidence SoakBench::Run(const Plan& plan, bool save) {
  const auto file = bench_.Only().Folder() / "run.orvik";
  std::filesystem::copy_file(Prepared(plan.kind), file, std::filesystem::copy_options::overwrite_existing);
  Disturb(plan);
  Evidence evidence;
  {
    const auto document = host::document::Document::Open(bench_.Only().SharedHost(), file);
    Perform(plan, *document, save, evidence);
    const auto judged = Judged(*document);
    evidence.elements = judged.elements;
    evidence.outcome = judged.outcome;
  }
  LetTimePass();
  evidence.sent = bench_.Wire().Sent();
  evidence.received = bench_.Wire().Received();
  evidence.inRemoteMode = bench_.Tester().InRemoteMode();
  evidence.portOpen = bench_.Line().Line()->Connected();
  evidence.windows = bench_.Application().Forms().size();
  if (save)
    evidence.reopened = Judged(*host::document::Document::Open(bench_.Only().SharedHost(), file,
                                                               host::document::DocumentFile::Use::kRead))
                            .elements;
  bench_.Wire().Clear();
  bench_.Tester().UseFaults(nullptr);
  return evidence;
}

/// The tester stays as the previous run left it, but its cable is plugged in.
void SoakBench::Disturb(const Plan& plan) {
  bench_.Tester().PlugIn();
  bench_.Tester().UseFaults(std::make_shared<RunFaults>(plan));
}

void SoakBench::Perform(const Plan& plan, host::document::Document& document, bool save, Evidence& evidence) {
  auto& wire = *bench_.Ports().TheWire();
  host::serial::WireLog log(bench_.Only().Folder() / "run.orvik.wire.log");
  const auto logged = wire.Subscribe([&](const host::serial::WireRecord& record) { log.Write(record); });
  support::RunParts parts(bench_.Ports(), document);
  parts.heading.by = "M. Holm";
  parts.heading.simulated = true;
  parts.clock = host::LocalTimeText;
  parts.save = [&] { save ? document.Save() : static_cast<void>(document.Text()); };
  int calls = 0;
  const auto pumped = bench_.Application().Pumped().Subscribe([&] {
    if (calls++ == plan.stopAt) parts.stop.Ask();
  });
  evidence.end = parts.RunByProgram(bench_.Only().SharedApplication());
}

host::judge::JudgedDocument SoakBench::Judged(const host::document::Document& document) {
  return host::judge::Judge(document, *bench_.Host().Elements());
}

void SoakBench::LetTimePass() {
  const auto end = bench_.Application().Now() + std::chrono::minutes(1);
  while (bench_.Application().Now() < end) bench_.Application().WaitMessages(end);
}

}  // namespace soak
