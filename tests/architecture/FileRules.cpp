#include "tests/architecture/FileRules.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <string>

namespace house {

namespace {

using WordSet = std::set<std::string_view>;

constexpr std::size_t kMostLines = 500;

/// Standard headers that need something of the system, or that the library has no use for.
const WordSet kSystemDependent = {
    "atomic",     "barrier",   "cassert",    "cfenv",        "cinttypes",  "clocale",   "codecvt",
    "csetjmp",    "csignal",   "cstdarg",    "ctime",        "cuchar",     "cwchar",    "condition_variable",
    "cwctype",    "execution", "filesystem", "fstream",      "future",     "iostream",  "latch",
    "locale",     "mutex",     "semaphore",  "shared_mutex", "stop_token", "strstream", "scoped_allocator",
    "syncstream", "thread"};

/// C++ headers are small letters, digits and underscores; those of C, the system and other libraries are not.
bool IsCppHeader(std::string_view name) {
  return std::all_of(name.begin(), name.end(), [](unsigned char letter) {
    return std::islower(letter) || std::isdigit(letter) || letter == '_';
  });
}

bool IsSystemHeader(std::string_view name) {
  return name.ends_with(".h") && (name.starts_with("sys/") || name.find('/') == std::string_view::npos);
}

std::string At(const SourceFile& file, std::size_t line) { return file.path + ":" + std::to_string(line); }

/// A finding for each line of code that `isWrong` names.
template <class IsWrong>
Findings FindLines(const SourceFile& file, const std::vector<std::string>& lines, IsWrong isWrong,
                   const std::string& advice) {
  Findings findings;
  for (std::size_t line = 0; line < lines.size(); ++line)
    if (isWrong(lines[line])) findings.push_back({At(file, line + 1), advice});
  return findings;
}

auto HasOneOf(const WordSet& words) {
  return [&words](const std::string& line) {
    return std::any_of(words.begin(), words.end(), [&line](auto word) { return HasWord(line, word); });
  };
}

template <class IsWrong>
Findings FindIncludes(const SourceFile& file, IsWrong isWrong, const std::string& advice) {
  Findings findings;
  for (const auto& include : file.includes)
    if (!include.quoted && isWrong(include.name))
      findings.push_back(
          {At(file, static_cast<std::size_t>(include.line)), "<" + include.name + "> " + advice});
  return findings;
}

}  // namespace

Findings LengthFindings(const SourceFile& file) {
  const auto count = file.code.size();
  if (count <= kMostLines) return {};
  return {{file.path, std::to_string(count) + " lines are more than " + std::to_string(kMostLines)}};
}

Findings HeaderGuardFindings(const SourceFile& file) {
  if (!IsHeader(file.path) || file.text.starts_with("#pragma once\n")) return {};
  return {{file.path, "does not begin with #pragma once"}};
}

Findings SwallowedErrorFindings(const SourceFile& file) {
  if (!IsInsideLibrary(file.path) || file.path == "plugin/base/Attempt.h" ||
      file.path == "plugin/EntryPoints.cpp")
    return {};
  return FindLines(
      file, file.code,
      [](std::string line) {
        std::erase_if(line, [](unsigned char letter) { return std::isspace(letter); });
        return line.find("catch(...)") != std::string::npos;
      },
      "catch (...): only Attempt ignores errors");
}

Findings RawCastFindings(const SourceFile& file) {
  static const WordSet words = {"dynamic_cast", "dynamic_pointer_cast"};
  if (!IsInsideLibrary(file.path) || file.path == "OrvikTypeLib/As.h") return {};
  return FindLines(file, file.code, HasOneOf(words), "use As<>");
}

Findings SystemHeaderFindings(const SourceFile& file) {
  if (!IsInsideLibrary(file.path)) return {};
  return FindIncludes(
      file, [](const std::string& name) { return !IsCppHeader(name) || kSystemDependent.contains(name); },
      "is not for the library: ask the host or the platform");
}

Findings ClockFindings(const SourceFile& file) {
  static const WordSet words = {
      "steady_clock", "system_clock",  "high_resolution_clock", "utc_clock",  "file_clock",
      "time_t",       "clock_gettime", "gettimeofday",          "sleep",      "usleep",
      "nanosleep",    "sleep_for",     "sleep_until",           "this_thread"};
  if (!IsInsideLibrary(file.path)) return {};
  return FindLines(file, file.code, HasOneOf(words), "the library's only time is the platform's");
}

Findings TesterHeaderFindings(const SourceFile& file) {
  if (FolderOf(file.path) != "tester") return {};
  return FindIncludes(
      file, [](const std::string& name) { return !IsCppHeader(name) && !IsSystemHeader(name); },
      "is neither C++ nor the system's");
}

Findings UnfinishedWorkFindings(const SourceFile& file) {
  // In two pieces each, so that this file has none of them.
  static const WordSet words = {
      "TO"
      "DO",
      "FIX"
      "ME",
      "X"
      "XX",
      "HA"
      "CK",
      "T"
      "BD",
      "W"
      "IP"};
  return FindLines(file, Lines(file.text), HasOneOf(words), "finish the work");
}

Findings MachinePathFindings(const SourceFile& file, std::string_view root) {
  return FindLines(
      file, Lines(file.text),
      [root](const std::string& line) {
        for (const auto place : {root,
                                 std::string_view("/ho"
                                                  "me/"),
                                 std::string_view("/ro"
                                                  "ot/")})
          if (line.find(place) != std::string::npos) return true;
        return false;
      },
      "this path exists on one machine only");
}

}  // namespace house
