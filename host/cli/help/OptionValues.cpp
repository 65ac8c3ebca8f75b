#include "host/cli/help/OptionValues.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <sstream>
#include <string_view>

#include "host/bench/ProgramFiles.h"
#include "host/bench/SimulatedTester.h"
#include "host/cli/help/ProgramLanguage.h"
#include "host/standards/LimitSets.h"

namespace host::cli {

namespace {

constexpr std::string_view kProfile = "[PROFILE]";
constexpr std::string_view kSet = "SET";
constexpr std::string_view kDocument = "DOCUMENT";
constexpr std::string_view kFileOrAddress = "FILE|URL";
constexpr std::array kFiles{std::string_view("FILE"),
                            kFileOrAddress,
                            std::string_view("OUT"),
                            std::string_view("OUT.svg"),
                            std::string_view("LOG"),
                            std::string_view("DEVICE"),
                            kProfile,
                            kSet};
constexpr std::array<std::string_view, 2> kFolders{"DIR", "FOLDER"};

/// An argument is called what an option has as its type.
std::string TypeOf(const CLI::Option& option) {
  const auto type = option.get_type_name();
  const bool named = type.find('|') != std::string::npos || !option.get_positional();
  return named ? type : option.get_name(true);
}

template <class Names>
bool Among(const Names& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

std::vector<std::string> Alternatives(const std::string& alternatives) {
  std::vector<std::string> parts;
  std::istringstream text(alternatives);
  for (std::string part; std::getline(text, part, '|');) parts.push_back(part);
  return parts;
}

std::vector<std::string> ShippedSets() {
  std::vector<std::string> names;
  for (const auto& entry : standards::LimitSets({bench::files::ShippedStandards()}).All())
    names.push_back(entry.file.stem().string());
  return names;
}

}  // namespace

bool NamesDocument(const CLI::Option& option) {
  const auto type = TypeOf(option);
  return type == kDocument || (option.get_positional() && type == "FILE");
}

bool NamesFile(const CLI::Option& option) { return !NamesDocument(option) && Among(kFiles, TypeOf(option)); }

bool NamesFolder(const CLI::Option& option) { return Among(kFolders, TypeOf(option)); }

bool NamesElement(const CLI::Option& option) { return !option.get_positional() && TypeOf(option) == "ID"; }

bool NamesCommand(const CLI::Option& option) {
  return option.get_positional() && TypeOf(option) == "COMMAND";
}

std::vector<std::string> WordsFor(const CLI::Option& option) {
  const auto type = TypeOf(option);
  if (type == kProfile) return {bench::kSimulatedProfiles.begin(), bench::kSimulatedProfiles.end()};
  if (type == kSet) return ShippedSets();
  if (type == "L") return KnownLanguages();
  if (type == kFileOrAddress || type.find('|') == std::string::npos) return {};
  return Alternatives(type);
}

}  // namespace host::cli
