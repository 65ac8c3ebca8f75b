#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "host/base/ErrorLog.h"
#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"

namespace host {
namespace {

using support::Holds;
using support::TemporaryFolder;

/// 2026-02-28 23:59:59.250 UTC.
std::chrono::system_clock::time_point Fixed() {
  return std::chrono::system_clock::time_point(std::chrono::milliseconds(1772323199250));
}

void Log(orvik::IErrorLog& log, const std::string& source, const orvik::Variant& value = {}) {
  log.LogEntry(source, static_cast<std::int32_t>(0x8004A22CU), "CKELDPlugin", 3, value, {}, {}, {}, {});
}

TEST(ErrorLog, WritesAnEntryOnOneLine) {
  TemporaryFolder folder;
  ErrorLog log(folder.Path(), ErrorLog::kDefaultLimit, Fixed);
  log.LogEntry("KELD(IN)", static_cast<std::int32_t>(0x8004A22CU), "CKELDPlugin", 3, "x", std::int32_t{7}, {},
               2.5, std::vector<std::string>{"a", "b"});
  EXPECT_EQ(folder.Read("error.log"),
            "2026-02-28T23:59:59.250Z\tKELD(IN)\t0x8004A22C\t-2147179988\tCKELDPlugin\t3\tx\t7\t2.5\ta, b\n");
}

TEST(ErrorLog, MissingValuesAddNothing) {
  TemporaryFolder folder;
  ErrorLog log(folder.Path(), ErrorLog::kDefaultLimit, Fixed);
  Log(log, "S");
  EXPECT_EQ(folder.Read("error.log"),
            "2026-02-28T23:59:59.250Z\tS\t0x8004A22C\t-2147179988\tCKELDPlugin\t3\n");
}

TEST(ErrorLog, FieldsCannotForgeLines) {
  TemporaryFolder folder;
  ErrorLog log(folder.Path(), ErrorLog::kDefaultLimit, Fixed);
  Log(log, "a\nb\tc\\d\x1B[31m\r", "\xFF");
  const auto text = folder.Read("error.log");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1);
  EXPECT_TRUE(support::Holds(text, "\ta\\nb\\tc\\\\d\\x1b[31m\\x0d\t"));
  EXPECT_TRUE(support::Holds(text, "\t\xEF\xBF\xBD\n"));
}

TEST(ErrorLog, KeepsEarlierEntries) {
  TemporaryFolder folder;
  {
    ErrorLog log(folder.Path(), ErrorLog::kDefaultLimit, Fixed);
    Log(log, "first");
  }
  ErrorLog log(folder.Path(), ErrorLog::kDefaultLimit, Fixed);
  Log(log, "second");
  EXPECT_TRUE(support::Holds(folder.Read("error.log"), "first"));
  EXPECT_TRUE(support::Holds(folder.Read("error.log"), "second"));
}

TEST(ErrorLog, RotatesAFullFileAndDeletesTheOldest) {
  TemporaryFolder folder;
  ErrorLog log(folder.Path(), 100, Fixed);
  for (const auto* source : {"one", "two", "three", "four"}) Log(log, source);
  EXPECT_TRUE(support::Holds(folder.Read("error.log"), "four"));
  EXPECT_TRUE(support::Holds(folder.Read("error.log.1"), "three"));
  EXPECT_TRUE(support::Holds(folder.Read("error.log.2"), "two"));
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "error.log.3"));
}

TEST(ErrorLog, EntryLargerThanTheLimitIsWrittenWhole) {
  TemporaryFolder folder;
  ErrorLog log(folder.Path(), 100, Fixed);
  Log(log, std::string(1000, 'x'));
  EXPECT_TRUE(support::Holds(folder.Read("error.log"), std::string(1000, 'x')));
}

TEST(ErrorLog, TwoProgramsNeitherLoseNorMixEntries) {
  TemporaryFolder folder;
  constexpr int kPrograms = 4;
  constexpr int kEntries = 25;
  std::vector<pid_t> children;
  for (int program = 0; program < kPrograms; ++program) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ErrorLog log(folder.Path(), ErrorLog::kDefaultLimit, Fixed);
      int written = 0;
      while (written < kEntries) {
        if (support::ErrorNumber([&] { Log(log, std::string(200, static_cast<char>('a' + program))); }) == 0)
          ++written;
      }
      _exit(0);
    }
    children.push_back(child);
  }
  for (const auto child : children) {
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
  }
  std::istringstream lines(folder.Read("error.log"));
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    const auto source = line.substr(line.find('\t') + 1, 200);
    EXPECT_EQ(source, std::string(200, source.front()));
  }
  EXPECT_EQ(count, kPrograms * kEntries);
}

TEST(ErrorLog, ReportsWhyAnEntryCannotBeWritten) {
  TemporaryFolder folder;
  ErrorLog log(folder.Write("file", "") + "/below");
  EXPECT_EQ(log.Failure(), "");
  EXPECT_EQ(support::ErrorText([&] { Log(log, "S"); }), "");
  EXPECT_TRUE(support::Holds(log.Failure(), "file/below"));
}

TEST(ErrorLog, DropsEntriesWithoutAFolder) {
  ErrorLog log({});
  EXPECT_EQ(support::ErrorText([&] { Log(log, "S"); }), "");
  EXPECT_EQ(log.Failure(), "");
  EXPECT_FALSE(std::filesystem::exists("error.log"));
}

}  // namespace
}  // namespace host
