#include "tests/house/FileRules.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace house {

namespace {

constexpr std::size_t kMostLines = 500;

std::string Without(const std::string& text, std::string_view characters) {
  std::string kept;
  for (const char character : text)
    if (characters.find(character) == std::string_view::npos) kept += character;
  return kept;
}

std::string At(const SourceFile& file, std::size_t lineIndex) {
  return file.path + ":" + std::to_string(lineIndex + 1);
}

/// A finding for each line of `text`, a part of `file`, that has one of the words.
void FindWords(const SourceFile& file, const std::string& text, std::initializer_list<std::string_view> words,
               const std::string& advice, Findings& findings) {
  const auto lines = Lines(text);
  for (std::size_t line = 0; line < lines.size(); ++line)
    for (const auto word : words)
      if (HasWord(lines[line], word)) findings.push_back({At(file, line), std::string(word) + ": " + advice});
}

}  // namespace

Findings LengthFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files) {
    const auto count = Lines(file.text).size();
    if (count > kMostLines)
      findings.push_back({file.path, std::to_string(count) + " lines are more than " +
                                         std::to_string(kMostLines) + ": split it by reasons to change"});
  }
  return findings;
}

Findings HeaderGuardFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files)
    if (IsHeader(file.path) && !file.text.starts_with("#pragma once\n"))
      findings.push_back({file.path, "does not begin with #pragma once"});
  return findings;
}

Findings SwallowedErrorFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files) {
    if (!IsInsideLibrary(file.path) || file.path == "plugin/Attempt.h" ||
        file.path == "plugin/EntryPoints.cpp")
      continue;
    const auto lines = Lines(file.parts.code);
    for (std::size_t line = 0; line < lines.size(); ++line)
      if (Without(lines[line], " \t").find("catch(...)") != std::string::npos)
        findings.push_back({At(file, line), "catch (...): errors are ignored by Attempt alone"});
  }
  return findings;
}

Findings RawCastFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files)
    if (IsInsideLibrary(file.path) && file.path != "OrvikTypeLib/As.h")
      FindWords(file, file.parts.code, {"dynamic_cast", "dynamic_pointer_cast"}, "use As<>", findings);
  return findings;
}

Findings ClockFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files)
    if (IsInsideLibrary(file.path))
      FindWords(file, file.parts.code,
                {"steady_clock", "system_clock", "high_resolution_clock", "utc_clock", "file_clock", "time_t",
                 "clock_gettime", "gettimeofday", "sleep", "usleep", "nanosleep", "sleep_for", "sleep_until",
                 "this_thread"},
                "the library knows the platform's time only", findings);
  return findings;
}

Findings UnfinishedWorkFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files)
    FindWords(file, file.parts.comments, {"TODO", "FIXME", "XXX", "HACK", "TBD", "WIP"}, "finish the work",
              findings);
  return findings;
}

Findings MachinePathFindings(const std::vector<SourceFile>& files, std::string_view root) {
  Findings findings;
  for (const auto& file : files) {
    const auto lines = Lines(file.text);
    for (std::size_t line = 0; line < lines.size(); ++line)
      for (const std::string_view place : {root,
                                           std::string_view("/ho"
                                                            "me/"),
                                           std::string_view("/ro"
                                                            "ot/")})
        if (lines[line].find(place) != std::string::npos)
          findings.push_back({At(file, line), std::string(place) + " is there on one machine only"});
  }
  return findings;
}

}  // namespace house
