#include <algorithm>
#include <array>
#include <string_view>

#include "tests/architecture/Arrows.h"

namespace house {

namespace {

constexpr std::string_view kJudge = "host/judge/";
/// Here a document is turned into plain data.
constexpr std::string_view kGathers = "host/judge/CaseOf.";

/// What every file of the judge may include, by the beginning of its path.
constexpr std::array<std::string_view, 13> kForAll{
    "host/judge/",      "host/document/Equipment.h", "host/document/Reason.h", "host/document/RunRecord.h",
    "host/plugins/",    "host/serial/Latin1.h",      "host/serial/Message.h",  "host/base/Text.h",
    "host/base/Tr.h",   "host/standards/Units.h",    "OrvikTypeLib/Codes.h",   "OrvikTypeLib/Variant.h",
    "OrvikTypeLib/As.h"};
/// What the gathering may include beside it.
constexpr std::array<std::string_view, 6> kForGathering{
    "OrvikTypeLib/",         "host/document/Document.h",      "host/elements/",
    "host/document/Element", "host/document/SavedSettings.h", "host/document/Host.h"};
/// Headers of the standard library and the system by which files, threads and clocks are had.
constexpr std::array<std::string_view, 8> kOutsideWorld{"fstream", "filesystem", "iostream", "chrono",
                                                        "ctime",   "thread",     "unistd.h", "fcntl.h"};

template <std::size_t N>
bool BeginsWithOne(const std::array<std::string_view, N>& beginnings, std::string_view name) {
  return std::any_of(beginnings.begin(), beginnings.end(),
                     [name](std::string_view beginning) { return name.starts_with(beginning); });
}

bool Allowed(std::string_view file, const Include& include) {
  if (!include.quoted)
    return std::find(kOutsideWorld.begin(), kOutsideWorld.end(), include.name) == kOutsideWorld.end();
  return BeginsWithOne(kForAll, include.name) ||
         (file.starts_with(kGathers) && BeginsWithOne(kForGathering, include.name));
}

}  // namespace

Findings JudgeFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files) {
    if (!file.path.starts_with(kJudge)) continue;
    for (const auto& include : file.includes)
      if (!Allowed(file.path, include))
        findings.push_back(
            {file.path + ":" + std::to_string(include.line),
             "\"" + include.name + "\" is not for the judge, which sees a document and its records alone"});
  }
  return findings;
}

}  // namespace house
