// A wire log that the simulated tester is to answer by.
#include "fuzz/SpoiledSession.h"
#include "fuzz/TesterErrors.h"
#include "tester/RecordedWire.h"
#include "tester/Replay.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto text = fuzz::TextOf(data, size);
  sim::RecordedWire wire;
  if (!fuzz::IsTaken([&] { wire = sim::ParseWireLog(text, "log"); }, "log:")) return 0;
  fuzz::Require(!wire.commands.empty(), "a log that is taken has a command");
  const auto say = [](const std::string& remark) {
    fuzz::Require(!remark.empty(), "a command that the log does not answer is reported");
  };
  fuzz::RunSpoiledSession(*sim::MakeBuiltInProfile(std::string(sim::kDefaultProfile)),
                          std::make_shared<sim::Replay>(std::move(wire), say));
  return 0;
}
