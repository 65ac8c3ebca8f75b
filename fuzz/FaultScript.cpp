// A fault script for the simulated tester.
#include "tester/FaultScript.h"

#include "fuzz/SpoiledSession.h"
#include "fuzz/TesterErrors.h"
#include "tester/Text.h"
#include "tester/TextFile.h"

namespace {

/// A fault that was read is written as it can be read again.
void CheckWriting(const std::string& text) {
  for (const auto& line : sim::SplitTextLines(text, "script")) {
    std::string_view rest = line.text;
    for (int word = 0; word < 2; ++word) sim::TakeWord(rest);
    if (!rest.empty() && rest.front() >= '0' && rest.front() <= '9') sim::TakeWord(rest);
    const auto written = sim::FaultText(sim::ParseFault(rest, "script", line.number));
    fuzz::Require(sim::FaultText(sim::ParseFault(written, "script", line.number)) == written,
                  "a fault reads back as it was");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto text = fuzz::TextOf(data, size);
  std::shared_ptr<sim::FaultScript> script;
  if (!fuzz::IsTaken([&] { script = std::make_shared<sim::FaultScript>(text, "script"); }, "script:"))
    return 0;
  CheckWriting(text);
  fuzz::RunSpoiledSession(*sim::MakeBuiltInProfile(std::string(sim::kDefaultProfile)), script);
  return 0;
}
