// A profile of the equipment that the simulated tester measures.
#include "tester/Profile.h"

#include "fuzz/TesterErrors.h"
#include "host/serial/LineReader.h"
#include "host/serial/Message.h"
#include "tester/ProfileFile.h"
#include "tester/Tester.h"

namespace {

using fuzz::Require;

/// Every answer is a message that a host takes.
void CheckAnswers(const sim::Profile& profile) {
  sim::Tester tester(profile);
  tester.Receive("IREM\r\nQMTI\r\n", {});
  for (const int test : {1, 210, 410, 420, 910, 1010}) {
    const auto both = std::to_string(test) + ",0\r\n";
    tester.Receive("STST," + both + "GRES," + both, {});
  }
  host::serial::LineReader reader;
  while (const auto due = tester.NextDue()) {
    reader.Feed(tester.TakeDue(*due)->bytes, [](std::string_view line, bool good) {
      Require(good && host::serial::ParseMessage(line),
              "the host understands every answer: " + std::string(line));
    });
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto text = fuzz::TextOf(data, size);
  std::optional<sim::Profile> profile;
  if (!fuzz::IsTaken([&] { profile = sim::ParseProfile(text, "profile"); }, "profile:")) return 0;
  Require(!profile->Name().empty(), "a profile has a name");
  CheckAnswers(*profile);
  return 0;
}
