#include "tests/house/Folders.h"

#include <map>
#include <set>
#include <string>

namespace house {

namespace {

using Names = std::set<std::string, std::less<>>;

const Names kPlugInMayInclude = {"plugin", "model",        "instrument", "results",
                                 "ui",     "OrvikTypeLib", "platform",   "resources"};

/// What the files of a folder may include, beside the standard library and what comes from outside.
const std::map<std::string, Names, std::less<>> kMayInclude = {
    {"OrvikTypeLib", {"OrvikTypeLib"}},
    {"platform", {"platform"}},
    {"resources", {"resources"}},
    {"plugin", kPlugInMayInclude},
    {"model", kPlugInMayInclude},
    {"instrument", kPlugInMayInclude},
    {"results", kPlugInMayInclude},
    {"ui", kPlugInMayInclude},
    {"tester", {"tester"}},
    {"host", {"host", "OrvikTypeLib", "platform"}},
    {"windows", {"windows", "OrvikTypeLib", "platform", "resources"}},
};

/// These put the parts together and may include all of them.
const Names kMayIncludeAll = {"tests", "benchmarks", "fuzz"};

Finding At(const SourceFile& file, const Include& include, const std::string& what) {
  return {file.path + ":" + std::to_string(include.line), "\"" + include.name + "\" " + what};
}

}  // namespace

Findings FolderFindings(const std::vector<SourceFile>& files) {
  Names paths;
  for (const auto& file : files) paths.insert(file.path);

  Findings findings;
  for (const auto& file : files) {
    const std::string folder = FolderOf(file.path);
    const auto rule = kMayInclude.find(folder);
    if (rule == kMayInclude.end() && !kMayIncludeAll.contains(folder)) {
      findings.push_back({file.path, "the folder has no rule yet: give it one in tests/house/Folders.cpp"});
      continue;
    }
    for (const auto& include : file.includes) {
      if (!include.quoted) continue;
      if (!paths.contains(include.name))
        findings.push_back(At(file, include, "is no file of the repository, seen from its root"));
      else if (rule != kMayInclude.end() && !rule->second.contains(FolderOf(include.name)))
        findings.push_back(At(file, include, "is not for " + folder + "/ to include"));
    }
  }
  return findings;
}

}  // namespace house
