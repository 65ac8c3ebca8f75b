#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tester/BuiltInProfiles.h"

namespace sim {

/// What the command line asks for.
struct Options {
  enum class Action { Run, ShowHelp, ShowVersion };

  Action action = Action::Run;
  std::string link;                      ///< path of the link to the pseudo-terminal; never empty to run
  std::string profile{kDefaultProfile};  ///< a built-in profile's name or a profile file
  std::optional<std::string> faults;     ///< a fault script
  std::optional<std::string> serial;     ///< instead of the profile's serial number; may be empty
  std::optional<std::string> trace;      ///< a file to add the trace to
  double timeScale = 1.0;
  bool exitWithParent = false;
};

/// Reads the arguments, the program's name not among them. Throws InputError naming the option and what to
/// do. Not thread-safe: getopt_long keeps its place in global variables.
Options ParseOptions(const std::vector<std::string>& arguments);

/// The text of --help.
std::string HelpText();

/// The text of --version, one line.
std::string VersionText();

}  // namespace sim
