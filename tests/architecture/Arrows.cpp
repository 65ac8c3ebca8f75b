#include "tests/architecture/Arrows.h"

#include <sstream>

namespace house {
namespace {

constexpr std::string_view kForThePlugIn = "model/IKELDTest.h";

bool MayIncludeAll(std::string_view path) {
  const std::string folder = FolderOf(path);
  return folder == "tests" || folder == "benchmarks" || folder == "fuzz";
}

/// The innermost declared folder of a file; null when none is declared.
const Arrows::value_type* DeclaredFolder(const Arrows& arrows, std::string_view path) {
  for (auto slash = path.rfind('/'); slash != std::string_view::npos; slash = path.rfind('/', slash - 1)) {
    if (const auto found = arrows.find(path.substr(0, slash)); found != arrows.end()) return &*found;
    if (slash == 0) break;
  }
  return nullptr;
}

}  // namespace

Arrows ReadArrows(std::string_view text) {
  Arrows arrows;
  std::istringstream lines{std::string(text)};
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string folder;
    if (!(words >> folder)) continue;
    arrows[folder].insert(folder);
    for (std::string used; words >> used;) arrows[folder].insert(used);
  }
  return arrows;
}

Findings ArrowFindings(const std::vector<SourceFile>& files, const Arrows& arrows) {
  std::set<std::string, std::less<>> paths;
  for (const auto& file : files) paths.insert(file.path);

  Findings findings;
  for (const auto& file : files) {
    const auto* folder = MayIncludeAll(file.path) ? nullptr : DeclaredFolder(arrows, file.path);
    if (!folder && !MayIncludeAll(file.path))
      findings.push_back({file.path, "is in no folder that the build declares: add it with orvik_folder"});
    for (const auto& include : file.includes) {
      if (!include.quoted) continue;
      const auto where = file.path + ":" + std::to_string(include.line);
      if (!paths.contains(include.name)) {
        findings.push_back(
            {where, "\"" + include.name + "\" is not a file of the repository, seen from its root"});
        continue;
      }
      if (!folder || (IsPlugIn(file.path) && include.name == kForThePlugIn)) continue;
      const auto* used = DeclaredFolder(arrows, include.name);
      if (!used || !folder->second.contains(used->first))
        findings.push_back({where, folder->first + " must not include \"" + include.name + "\""});
    }
  }
  return findings;
}

}  // namespace house
