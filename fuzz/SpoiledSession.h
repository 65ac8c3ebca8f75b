#pragma once

#include <memory>

#include "fuzz/Promise.h"
#include "tester/BuiltInProfiles.h"
#include "tester/Tester.h"

namespace fuzz {

/// Has the simulated tester obey the commands of a whole test while `faults` go wrong, and checks that what
/// it sends stays bounded.
inline void RunSpoiledSession(sim::Profile profile, std::shared_ptr<sim::Faults> faults) {
  // Each reply may come many times, but not without end.
  constexpr std::size_t kMostOutputs = 20000, kMostBytes = 16U << 20U;
  sim::Tester tester(std::move(profile));
  tester.UseFaults(std::move(faults));
  sim::Instant now{};
  std::size_t outputs = 0, bytes = 0;
  for (const char* command : {"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM"}) {
    tester.Receive(std::string(command) + "\r\n", now);
    while (const auto due = tester.NextDue()) {
      now = std::max(now, *due);
      const auto output = tester.TakeDue(now);
      Require(output.has_value(), "what is due can be taken");
      bytes += output->bytes.size();
      Require(++outputs <= kMostOutputs && bytes <= kMostBytes, "what a tester sends is bounded");
      if (output->hangUp) tester.PlugIn();
    }
  }
}

}  // namespace fuzz
