#pragma once

#include <filesystem>
#include <string>

namespace host::bench {

/// The options of the desktop program.
struct DesktopOptions {
  std::string state;      ///< folder of settings; empty for the usual one
  std::string catalogue;  ///< file with the catalogue; empty for the usual one
  std::string language;   ///< of texts, such as "de"; empty for English
  std::string file;       ///< document to open; empty for none
  double timeScale = 1.0;
};

/// Runs the desktop program until its window is closed, by the module at that place
/// (lib/orvik/orvikDesktop.so), which is opened for it.
/// @return false if a request to end stopped a run or left changes unsaved
/// @throws InputError for a document that cannot be read, IncompleteError without a display or without the
/// module
bool RunDesktopModule(const DesktopOptions& options, const std::filesystem::path& module);

/// The module's entry points.
namespace desktop {

/// `const char* OrvikDesktopVersion()`: the version of the program that the module belongs to.
inline constexpr char kVersionEntry[] = "OrvikDesktopVersion";
using VersionEntry = const char*();

/// How the desktop program ended.
enum class Ending {
  kInOrder,
  kLeftOver,      ///< a run was stopped, or changes were not saved
  kBadInput,      ///< the reason says why
  kNotPossible,   ///< the same
  kBusy,          ///< the same
  kInternalError  ///< the same
};

/// `Ending OrvikRunDesktop(options, reason)`.
inline constexpr char kRunEntry[] = "OrvikRunDesktop";
using RunEntry = Ending(const DesktopOptions& options, std::string& reason);

}  // namespace desktop

}  // namespace host::bench
