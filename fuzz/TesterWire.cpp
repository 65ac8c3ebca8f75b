// Bytes from a host, at the simulated tester.
#include <chrono>
#include <string>

#include "fuzz/Promise.h"
#include "host/serial/LineReader.h"
#include "host/serial/Message.h"
#include "tester/BuiltInProfiles.h"
#include "tester/Tester.h"

namespace {

using fuzz::Require;

/// All that the tester sends until nothing waits any more.
std::string SentBy(sim::Tester& tester) {
  std::string sent;
  while (const auto due = tester.NextDue()) {
    const auto output = tester.TakeDue(*due);
    Require(output.has_value(), "what is due can be taken");
    Require(!output->hangUp, "without faults the cable stays in");
    sent += output->bytes;
  }
  return sent;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto bytes = fuzz::TextOf(data, size);
  const auto profile = sim::MakeBuiltInProfile(std::string(sim::kDefaultProfile));
  const sim::Instant start{};

  sim::Tester whole(*profile);
  whole.Receive(bytes, start);
  sim::Tester piecewise(*profile);
  for (const char byte : bytes) piecewise.Receive(std::string_view(&byte, 1), start);
  const auto sent = SentBy(whole);
  Require(SentBy(piecewise) == sent, "answers do not depend on how the bytes are split");
  Require(whole.LinesDropped() == piecewise.LinesDropped(), "and so are the dropped lines");

  std::size_t answers = 0;
  host::serial::LineReader reader;
  reader.Feed(sent, [&](std::string_view line, bool good) {
    Require(good && host::serial::ParseMessage(line), "the host understands every answer");
    ++answers;
  });
  Require(!reader.InLine(), "every answer has its end");
  Require(answers <= whole.CommandsReceived() && answers <= sim::Tester::kMaxWaiting,
          "there are no more answers than commands, and no more than may wait");
  return 0;
}
