#pragma once

#include <sys/types.h>

#include <array>
#include <string>

#include "host/base/UniqueFd.h"

namespace host::bench {

/// The profiles of equipment that keld-sim comes with, in the order of its help.
inline constexpr std::array kSimulatedProfiles{"sound-class-1", "sound-class-2", "broken-earth", "leaky",
                                               "overloaded"};

/// keld-sim on a pseudo-terminal, started and ended with this object. Even when this
/// program is killed, keld-sim ends and removes its link.
class SimulatedTester {
 public:
  /// @param profile a built-in profile or a profile file; empty for the simulator's own choice
  /// `InputError` with the simulator's own words when it refuses the profile; `IncompleteError` when it
  /// cannot be started or is not ready within ten seconds.
  SimulatedTester(const std::string& profile, double timeScale);
  SimulatedTester(const SimulatedTester&) = delete;
  SimulatedTester& operator=(const SimulatedTester&) = delete;
  ~SimulatedTester();

  /// The serial device that the tester answers at.
  const std::string& Device() const { return link_; }

 private:
  void Start(const std::string& profile, double timeScale);
  void AwaitReady();
  void End();

  const std::string link_;
  pid_t process_ = -1;
  UniqueFd output_;
};

}  // namespace host::bench
