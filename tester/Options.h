#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tester/BuiltInProfiles.h"

namespace sim {

inline constexpr double kDefaultFaultRate = 0.1;

/// What the command line asks for.
struct Options {
  enum class Action { Run, ShowHelp, ShowManual, ShowVersion };

  Action action = Action::Run;
  std::string link;                        ///< path of the link to the pseudo-terminal; never empty to run
  std::string profile{kDefaultProfile};    ///< a built-in profile's name or a profile file
  std::optional<std::string> faults;       ///< a fault script
  std::optional<std::uint64_t> faultSeed;  ///< faults drawn by this seed
  std::optional<double> faultRate;         ///< the share of the replies that they spoil, above 0 to 1
  std::optional<std::string> replay;       ///< a wire log to answer by
  std::optional<std::string> serial;       ///< instead of the profile's serial number; may be empty
  std::optional<std::string> trace;        ///< a file to add the trace to
  double timeScale = 1.0;
  bool exitWithParent = false;

  double FaultRate() const { return faultRate.value_or(kDefaultFaultRate); }
};

/// Reads the arguments, the program's name not among them. Throws InputError naming the option and what to
/// do. Not thread-safe: getopt_long keeps its place in global variables.
Options ParseOptions(const std::vector<std::string>& arguments);

}  // namespace sim
