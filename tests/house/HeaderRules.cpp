#include <set>
#include <string>
#include <string_view>

#include "tests/house/FileRules.h"

namespace house {

namespace {

using Names = std::set<std::string, std::less<>>;

/// The C++20 headers that need nothing of the system: no threads, locks, files, streams to files, locales, C
/// clock.
const Names kPlainStandard = {
    "algorithm",        "any",      "array",       "bit",       "bitset",          "cctype",
    "cerrno",           "cfloat",   "charconv",    "chrono",    "climits",         "cmath",
    "compare",          "concepts", "coroutine",   "cstddef",   "cstdint",         "cstdio",
    "cstdlib",          "cstring",  "deque",       "exception", "forward_list",    "functional",
    "initializer_list", "iomanip",  "ios",         "iosfwd",    "istream",         "iterator",
    "limits",           "list",     "map",         "memory",    "memory_resource", "new",
    "numbers",          "numeric",  "optional",    "ostream",   "queue",           "random",
    "ranges",           "ratio",    "regex",       "set",       "source_location", "span",
    "sstream",          "stack",    "stdexcept",   "streambuf", "string",          "string_view",
    "system_error",     "tuple",    "type_traits", "typeindex", "typeinfo",        "unordered_map",
    "unordered_set",    "utility",  "valarray",    "variant",   "vector",          "version"};

/// The other headers of C++20.
const Names kOtherStandard = {"atomic",     "barrier",      "cassert",    "cfenv",
                              "cinttypes",  "clocale",      "codecvt",    "condition_variable",
                              "csetjmp",    "csignal",      "cstdarg",    "ctime",
                              "cuchar",     "cwchar",       "cwctype",    "execution",
                              "filesystem", "fstream",      "future",     "iostream",
                              "latch",      "locale",       "mutex",      "scoped_allocator",
                              "semaphore",  "shared_mutex", "stop_token", "strstream",
                              "syncstream", "thread"};

/// The system's headers that a program on a pseudo-terminal has a use for.
const Names kSystem = {"dirent.h", "errno.h",  "fcntl.h",  "getopt.h", "limits.h",  "poll.h", "pthread.h",
                       "pty.h",    "signal.h", "stdlib.h", "string.h", "termios.h", "time.h", "unistd.h"};

bool IsSystemHeader(std::string_view name) { return kSystem.contains(name) || name.starts_with("sys/"); }

Finding AtSystemHeader(const SourceFile& file, const Include& include, const std::string& what) {
  return {file.path + ":" + std::to_string(include.line), "<" + include.name + "> " + what};
}

}  // namespace

Findings SystemHeaderFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files) {
    if (!IsInsideLibrary(file.path)) continue;
    for (const auto& include : file.includes)
      if (!include.quoted && !kPlainStandard.contains(include.name))
        findings.push_back(
            AtSystemHeader(file, include, "is not for the library: ask the host or the platform"));
  }
  return findings;
}

Findings TesterHeaderFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files) {
    if (FolderOf(file.path) != "tester") continue;
    for (const auto& include : file.includes)
      if (!include.quoted && !kPlainStandard.contains(include.name) &&
          !kOtherStandard.contains(include.name) && !IsSystemHeader(include.name))
        findings.push_back(AtSystemHeader(file, include, "is neither C++ nor the system's"));
  }
  return findings;
}

}  // namespace house
