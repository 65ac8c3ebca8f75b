// The replies of a tester during a whole run, at the plug-in and at what the host makes of them.
//
// The input is what comes after each command, cut at NUL bytes. An empty piece is the simulated tester's own
// reply; a byte 0x01 lets a second pass, 0x02 pulls the cable. An input that begins with "S" is for a
// sequence.
#include <algorithm>
#include <cmath>

#include "fuzz/Bench.h"
#include "fuzz/Promise.h"
#include "host/judge/CaseOf.h"
#include "host/serial/Message.h"
#include "tests/support/RunParts.h"

namespace {

using fuzz::Require;
using host::judge::JudgedElement;
using host::judge::Verdict;

constexpr int kHighest = 300;  // mOhm

/// Answers each command with the next piece of the input.
class Answers {
 public:
  explicit Answers(std::string input) : rest_(std::move(input)) {}

  void To(const std::string& command) {
    const auto end = std::min(rest_.find('\0'), rest_.size());
    const auto piece = rest_.substr(0, end);
    rest_.erase(0, std::min(end + 1, rest_.size()));
    if (piece.empty())
      SendOwn(command);
    else
      Send(piece);
  }

 private:
  void SendOwn(const std::string& command) {
    auto& line = fuzz::TheBench().Line();
    const auto now = fuzz::TheBench().Application().Now();
    tester_.Receive(command + "\r\n", now);
    while (const auto due = tester_.NextDue()) line.SendBytes(tester_.TakeDue(*due)->bytes, *due - now);
  }

  static void Send(const std::string& piece) {
    auto& line = fuzz::TheBench().Line();
    std::chrono::seconds after{};
    std::string bytes;
    const auto send = [&] {
      if (!bytes.empty()) line.SendBytes(std::exchange(bytes, {}), after);
    };
    for (const char byte : piece) {
      if (byte != '\x01' && byte != '\x02') {
        bytes += byte;
        continue;
      }
      send();
      if (byte == '\x01') ++after;
      if (byte == '\x02') return line.Unplug();
    }
    send();
  }

  std::string rest_;
  sim::Tester tester_{*sim::MakeBuiltInProfile(std::string(sim::kDefaultProfile))};
};

/// A document with one test, or with a sequence of two, and a limit for each.
std::shared_ptr<host::document::Document> NewDocument(bool sequence) {
  auto& host = fuzz::TheBench().Only();
  auto document = host::document::Document::Create(host.SharedHost(), host.Folder() / "run.orvik");
  document->AddTest(sequence ? 400 : 410);
  for (const std::int32_t id : sequence ? std::vector{2, 3} : std::vector{1})
    support::SetLimit(*document, host.Host(), id, "", std::to_string(kHighest));
  return document;
}

void Run(host::document::Document& document, const std::string& input) {
  auto& bench = fuzz::TheBench();
  Answers answers(input);
  bench.Line().AnswerBy([&](const std::string& command) { answers.To(command); });
  support::RunParts parts(bench.Ports(), document);
  parts.save = [&] { document.Text(); };
  parts.RunByProgram(bench.Only().SharedApplication());
  bench.Line().AnswerBy([](const std::string&) {});
}

/// What is on its way still comes, and changes nothing any more.
void LetTimePass() {
  auto& application = fuzz::TheBench().Application();
  const auto end = application.Now() + std::chrono::hours(2);
  while (application.Now() < end) application.WaitMessages(end);
}

/// Whether a message of that mnemonic came whose parameters fit.
template <class Fits>
bool Came(const std::string& mnemonic, Fits fits) {
  const auto received = fuzz::TheBench().Wire().Received();
  return std::any_of(received.begin(), received.end(), [&](const std::string& line) {
    const auto message = host::serial::ParseMessage(line);
    return message && message->MnemonicText() == mnemonic && fits(message->Parameters());
  });
}

bool CameReading(std::int32_t testId) {
  return Came("gres", [&](const std::vector<std::string>& parameters) {
    return !parameters.empty() && parameters.front() == std::to_string(testId);
  });
}

/// A verdict that counts is the tester's own.
void CheckElement(const JudgedElement& element) {
  Require(element.verdict == Verdict::kPassed || !element.reasons.empty(), "what has not passed says why");
  if (element.group || !host::judge::IsDone(element.verdict)) return;
  Require(element.verdict == Verdict::kPassed, "a test with a limit that is done has passed");
  const auto& measured = element.measurement;
  Require(measured && measured->value && std::isfinite(*measured->value), "what passed was measured");
  Require(measured->flags.empty() && measured->unit == "mOhm", "what passed was measured in its unit");
  Require(*measured->value <= kHighest, "what passed keeps its limit");
  Require(element.value && element.judged, "what passed was judged by the tester's own words");
  Require(CameReading(element.testId), "what passed came over the wire");
}

void CheckOutcome(const host::judge::JudgedDocument& judged) {
  const auto& elements = judged.elements;
  const bool allDone = std::all_of(elements.begin(), elements.end(), [](const JudgedElement& element) {
    return host::judge::IsDone(element.verdict);
  });
  Require((judged.outcome == host::judge::Outcome::kPassed) == allDone,
          "a document has passed when all of it has");
  for (const auto& element : elements) CheckElement(element);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto input = fuzz::TextOf(data, size);
  const bool sequence = input.starts_with('S');
  if (sequence) input.erase(0, 1);

  auto& bench = fuzz::TheBench();
  bench.Wire().Clear();
  const auto document = NewDocument(sequence);
  const auto begin = bench.Application().Now();
  Run(*document, input);
  Require(bench.Application().Now() - begin < std::chrono::minutes(10),
          "a run ends within its bounded waits");
  Require(bench.Wire().Sent().size() <= 50, "the commands of a run are bounded");
  Require(!bench.Line().Line()->Connected(), "no port stays open");
  Require(bench.Application().Forms().empty(), "no window stays open");

  CheckOutcome(host::judge::Judge(*document, *bench.Host().Elements()));
  const auto saved = document->Text();
  LetTimePass();
  Require(document->Text() == saved, "what comes after the run changes nothing");
  return 0;
}
