#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "host/base/FileErrors.h"
#include "host/base/FreshFile.h"
#include "host/document/DocumentFile.h"
#include "tests/support/Errors.h"
#include "tests/support/InChild.h"
#include "tests/support/Seed.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/unit/document/DiskCalls.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;
using support::TemporaryFolder;
using Use = document::DocumentFile::Use;

TEST(DocumentFile, FirstWriteCreatesTheFile) {
  TemporaryFolder folder;
  auto file = document::DocumentFile::New(folder.Path() / "a.orvik");
  EXPECT_EQ(folder.Count(), 0U);
  file.Write("one");
  EXPECT_EQ(folder.Read("a.orvik"), "one");
  file.Write("two");
  EXPECT_EQ(folder.Read("a.orvik"), "two");
  EXPECT_EQ(file.Read(), "two");
  EXPECT_EQ(folder.Count(), 1U);
}

TEST(DocumentFile, NewFileNeverReplacesAnExistingOne) {
  TemporaryFolder folder;
  folder.Write("a.orvik", "there");
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { document::DocumentFile::New(folder.Path() / "a.orvik"); }),
                     "is there already"));
  auto late = document::DocumentFile::New(folder.Path() / "b.orvik");
  folder.Write("b.orvik", "somebody was faster");
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { late.Write("mine"); }), "is there already"));
  EXPECT_EQ(folder.Read("b.orvik"), "somebody was faster");
  EXPECT_EQ(folder.Count(), 2U);
}

TEST(DocumentFile, OnlyOneMayWrite) {
  TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("a.orvik", "old");
  {
    auto first = document::DocumentFile::Existing(path, Use::kWrite);
    EXPECT_TRUE(
        support::Holds(support::ErrorText([&] { document::DocumentFile::Existing(path, Use::kWrite); }),
                       "open in another program"));
    first.Write("new");
    EXPECT_TRUE(
        support::Holds(support::ErrorText([&] { document::DocumentFile::Existing(path, Use::kWrite); }),
                       "open in another program"))
        << "the new file is locked like the old one";
    EXPECT_EQ(document::DocumentFile::Existing(path, Use::kRead).Read(), "new");
  }
  EXPECT_EQ(support::ErrorText([&] { document::DocumentFile::Existing(path, Use::kWrite); }), "");
}

TEST(DocumentFile, NewFileIsLockedFromItsFirstWrite) {
  TemporaryFolder folder;
  const auto path = folder.Path() / "a.orvik";
  auto file = document::DocumentFile::New(path);
  file.Write("x");
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { document::DocumentFile::Existing(path, Use::kWrite); }),
                             "open in another program"));
}

TEST(DocumentFile, RejectsWritingAFileOpenedForReading) {
  TemporaryFolder folder;
  auto file = document::DocumentFile::Existing(folder.Write("a.orvik", "old"), Use::kRead);
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { file.Write("new"); }), "reading only"));
  EXPECT_EQ(folder.Read("a.orvik"), "old");
}

TEST(DocumentFile, DetectsAChangeByAProgramWithoutALock) {
  TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("a.orvik", "old");
  auto file = document::DocumentFile::Existing(path, Use::kWrite);
  folder.Write("edited", "by hand");
  std::filesystem::rename(folder.Path() / "edited", path);
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { file.Write("new"); }), "changed by another program"));
  EXPECT_EQ(folder.Read("a.orvik"), "by hand");
  std::filesystem::remove(path);
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { file.Write("new"); }), "changed by another program"));
}

TEST(DocumentFile, FollowsALink) {
  TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("real.orvik", "old");
  std::filesystem::create_symlink(path, folder.Path() / "link.orvik");
  document::DocumentFile::Existing(folder.Path() / "link.orvik", Use::kWrite).Write("new");
  EXPECT_EQ(folder.Read("real.orvik"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "link.orvik"));
}

TEST(DocumentFile, NamesAMissingFile) {
  EXPECT_TRUE(support::Holds(
      support::ErrorText([] { document::DocumentFile::Existing("/nowhere/a.orvik", Use::kRead); }),
      "/nowhere/a.orvik"));
}

TEST(DocumentFile, KeepsThePermissions) {
  TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("a.orvik", "old");
  ASSERT_EQ(chmod(path.c_str(), 0600), 0);
  document::DocumentFile::Existing(path, Use::kWrite).Write("new");
  EXPECT_EQ(FileMode(path), mode_t{0600});
}

TEST(DocumentFile, RefusesAWriteProtectedFile) {
  TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("a.orvik", "old");
  auto open = document::DocumentFile::Existing(path, Use::kWrite);
  ASSERT_EQ(chmod(path.c_str(), 0444), 0);
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { open.Write("new"); }), path.string() + " is write-protected"));
  open = document::DocumentFile();
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { document::DocumentFile::Existing(path, Use::kWrite); }),
                             "is write-protected"));
  EXPECT_EQ(document::DocumentFile::Existing(path, Use::kRead).Read(), "old");
  EXPECT_EQ(folder.Read("a.orvik"), "old");
  EXPECT_EQ(folder.Count(), 1U);
}

TEST(DocumentFile, TellsASecondProgramToTryAgain) {
  TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("a.orvik", "old");
  const auto first = document::DocumentFile::Existing(path, Use::kWrite);
  EXPECT_THROW(document::DocumentFile::Existing(path, Use::kWrite), BusyError);
}

TEST(DocumentFile, OnlyOneProgramCreatesAName) {
  constexpr int kPrograms = 8;
  TemporaryFolder folder;
  std::vector<pid_t> programs;
  for (int number = 0; number < kPrograms; ++number)
    programs.push_back(support::StartChild([&] {
      auto file = document::DocumentFile::New(folder.Path() / "a.orvik");
      file.Write(std::string(300'000, static_cast<char>('a' + number)));
    }));
  int succeeded = 0;
  char winner = 0;
  for (int number = 0; number < kPrograms; ++number) {
    if (!support::ChildSucceeded(programs[static_cast<std::size_t>(number)])) continue;
    ++succeeded;
    winner = static_cast<char>('a' + number);
  }
  EXPECT_EQ(succeeded, 1);
  EXPECT_EQ(folder.Read("a.orvik"), std::string(300'000, winner));
  EXPECT_EQ(folder.Count(), 1U);
}

TEST(DocumentFile, NewFileHasNoNameUntilItIsComplete) {
  TemporaryFolder folder;
  const auto fresh = FreshFile::ForNewName(folder.Path() / "a.orvik", "contents");
  EXPECT_EQ(folder.Count(), 0U) << "a program that is killed now leaves nothing";
}

TEST(DocumentFile, RemovesAnUnusedFileWithAnEarlyName) {
  TemporaryFolder folder;
  const auto path = folder.Path() / "a.orvik";
  const auto create = [&] { return FreshFile::ForNewName(path, "contents", FreshFile::Names::kEarly); };
  {
    const auto fresh = create();
    EXPECT_EQ(folder.Count(), 1U);
  }
  EXPECT_EQ(folder.Count(), 0U);
  create().TakeNewName(path);
  EXPECT_EQ(folder.Read("a.orvik"), "contents");
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { create().TakeNewName(path); }), "is there already"));
  EXPECT_EQ(folder.Count(), 1U);
}

// As on a full disk.
TEST(DocumentFile, FailedWriteOfANewFileLeavesNothing) {
  TemporaryFolder folder;
  EXPECT_TRUE(support::ChildSucceeded(support::StartChild([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100, 100};
    setrlimit(RLIMIT_FSIZE, &limit);
    auto file = document::DocumentFile::New(folder.Path() / "a.orvik");
    EXPECT_THROW(file.Write(std::string(100'000, 'x')), StorageError);
  })));
  EXPECT_EQ(folder.Count(), 0U);
}

TEST(DocumentFile, ContinuesAfterAFailedFlushOfTheFolder) {
  TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("a.orvik", "old");
  auto file = document::DocumentFile::Existing(path, Use::kWrite);
  {
    const support::FoldersCannotBeFlushed broken;
    EXPECT_THROW(file.Write("new"), StorageError);
  }
  EXPECT_EQ(folder.Read("a.orvik"), "new");
  EXPECT_EQ(file.Read(), "new");
  EXPECT_THROW(document::DocumentFile::Existing(path, Use::kWrite), BusyError) << "the lock has moved along";
  EXPECT_EQ(support::ErrorText([&] { file.Write("newer"); }), "");
  EXPECT_EQ(folder.Read("a.orvik"), "newer");
}

TEST(DocumentFile, KilledWriterLeavesTheOldOrTheNewFile) {
  std::mt19937 random(support::Seed());
  TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("a.orvik", std::string(50000, 'a'));
  for (int round = 0; round < 10; ++round) {
    int progress[2];
    ASSERT_EQ(pipe(progress), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      auto file = document::DocumentFile::Existing(path, Use::kWrite);
      for (int i = 0;; ++i) {
        file.Write(std::string(50000, static_cast<char>('a' + i % 26)));
        [[maybe_unused]] const auto told = write(progress[1], "x", 1);
      }
    }
    for (auto left = 1 + random() % 5; left > 0; --left) {
      char byte = 0;
      ASSERT_EQ(read(progress[0], &byte, 1), 1);
    }
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(progress[0]);
    close(progress[1]);
    const auto contents = folder.Read("a.orvik");
    ASSERT_FALSE(contents.empty());
    EXPECT_EQ(contents, std::string(50000, contents.front()));
  }
}

}  // namespace
}  // namespace host
