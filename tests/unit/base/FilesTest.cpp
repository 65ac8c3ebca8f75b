#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cerrno>
#include <csignal>

#include "host/base/FileErrors.h"
#include "host/base/Files.h"
#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"

namespace host {
namespace {

using orvik::HostError;
using support::ErrorText;
using support::Holds;
using support::TemporaryFolder;

TEST(Files, ReplacingLeavesOnlyTheNewFile) {
  TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("a.txt", "old");
  ReplaceFile(file, "new and longer");
  EXPECT_EQ(folder.Read("a.txt"), "new and longer");
  EXPECT_EQ(folder.Count(), 1U);
}

TEST(Files, ReplacingKeepsThePermissions) {
  TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("a.txt", "old");
  chmod(file.c_str(), 0640);
  ReplaceFile(file, "new");
  EXPECT_EQ(FileMode(file), 0640U);
}

TEST(Files, OverwritesTheTemporaryFileOfACrash) {
  TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("a.txt", "old");
  folder.Write("a.txt.new", "half of something much longer than what comes now");
  ReplaceFile(file, "new");
  EXPECT_EQ(folder.Read("a.txt"), "new");
  EXPECT_EQ(folder.Count(), 1U);
}

TEST(Files, FailedWriteLeavesTheOldContents) {
  TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("a.txt", "old");
  // The child may write 100 bytes to a file at most, as on a full disk.
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100, 100};
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto number = support::ErrorNumber([&] { ReplaceFile(file, std::string(100000, 'x')); });
    _exit(number == HostError::kPathError ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(folder.Read("a.txt"), "old");
  EXPECT_EQ(folder.Count(), 1U);
}

TEST(Files, WriteProtectedFileIsNotReplaced) {
  TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("a.txt", "old");
  chmod(file.c_str(), 0444);
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { ReplaceFile(file, "new"); }), "a.txt is write-protected"));
  EXPECT_EQ(folder.Read("a.txt"), "old");
  EXPECT_EQ(folder.Count(), 1U);
}

TEST(Files, DistinguishesMachineErrorsFromWrongNames) {
  for (const int error : {ENOSPC, EDQUOT, EFBIG, EIO, EMFILE})
    EXPECT_THROW(ThrowFileError("f", "%%1 cannot be written", error, "x"), StorageError) << error;
  for (const int error : {ENOENT, ENOTDIR, EACCES, EPERM, EROFS, EISDIR, 0}) {
    const auto thrown = [error] { ThrowFileError("f", "%%1 cannot be written", error, "x"); };
    EXPECT_THROW(
        try { thrown(); } catch (const StorageError&){}, HostError)
        << error;
  }
}

TEST(Files, NamesAMissingFileOrFolder) {
  EXPECT_TRUE(support::Holds(support::ErrorText([] { ReadFile("/nowhere/a.txt"); }), "/nowhere/a.txt"));
  EXPECT_TRUE(
      support::Holds(support::ErrorText([] { ReplaceFile("/nowhere/a.txt", "x"); }), "/nowhere/a.txt"));
  EXPECT_TRUE(support::Holds(support::ErrorText([] { CreateFolder("/proc/nowhere"); }), "/proc/nowhere"));
}

TEST(Files, RejectsFoldersAndPipes) {
  TemporaryFolder folder;
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { ReadFile(folder.Path()); }), "is no file"));
  const auto pipe = folder.Path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { ReadFile(pipe); }), "is no file"));
}

TEST(Files, LockIsRefusedWhileAnotherHoldsIt) {
  TemporaryFolder folder;
  const auto file = folder.Path() / "lock";
  {
    const FileLock held(file, kLockPatience);
    EXPECT_TRUE(support::Holds(support::ErrorText([&] { FileLock(file, std::chrono::milliseconds(0)); }),
                               "held by another"));
    EXPECT_THROW(FileLock(file, std::chrono::milliseconds(0)), BusyError);
  }
  EXPECT_EQ(support::ErrorText([&] { FileLock(file, std::chrono::milliseconds(0)); }), "");
}

TEST(Files, LockIsFreeAfterItsHolderWasKilled) {
  TemporaryFolder folder;
  const auto file = folder.Path() / "lock";
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const FileLock held(file, kLockPatience);
    [[maybe_unused]] const auto told = write(ready[1], "x", 1);
    while (true) pause();
  }
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  EXPECT_NE(support::ErrorText([&] { FileLock(file, std::chrono::milliseconds(0)); }), "");
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  EXPECT_EQ(support::ErrorText([&] { FileLock(file, std::chrono::milliseconds(0)); }), "");
  close(ready[0]);
  close(ready[1]);
}

}  // namespace
}  // namespace host
