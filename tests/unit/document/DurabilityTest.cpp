#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "host/base/ErrorLog.h"
#include "host/base/RegistryStore.h"
#include "host/document/DocumentFile.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/unit/document/DiskCalls.h"

namespace {

/// What was done to files since the last look, as "flush NAME" and "rename NAME NAME".
std::vector<std::string>& Done() {
  static std::vector<std::string> done;
  return done;
}

std::string NameOf(const std::filesystem::path& path) { return path.filename().string(); }

}  // namespace

// Both stand in for the C library's in this test program, and do what it does unless a test wants them to
// fail.
extern "C" int fsync(int descriptor) {
  std::error_code none;
  Done().push_back(
      "flush " + NameOf(std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), none)));
  struct stat status {};
  if (support::FoldersCannotBeFlushed::Now() && fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)) {
    errno = EIO;
    return -1;
  }
  return static_cast<int>(syscall(SYS_fsync, descriptor));
}
extern "C" int rename(const char* from, const char* to) noexcept {
  Done().push_back("rename " + NameOf(from) + " " + NameOf(to));
  return static_cast<int>(syscall(SYS_rename, from, to));
}

namespace host {
namespace {

using support::TemporaryFolder;

/// A file goes to the disk before it gets its name, and its name before anybody is told.
std::vector<std::string> Safely(const std::string& file, const TemporaryFolder& folder) {
  return {"flush " + file + ".new", "rename " + file + ".new " + file, "flush " + NameOf(folder.Path())};
}

TEST(Durability, FlushesASavedDocument) {
  TemporaryFolder folder;
  auto file =
      document::DocumentFile::Existing(folder.Write("a.orvik", "old"), document::DocumentFile::Use::kWrite);
  Done().clear();
  file.Write("new");
  EXPECT_EQ(Done(), Safely("a.orvik", folder));
}

TEST(Durability, FlushesANewDocument) {
  TemporaryFolder folder;
  auto file = document::DocumentFile::New(folder.Path() / "a.orvik");
  Done().clear();
  file.Write("new");
  // It is given its name by another call, which refuses to replace a file; until then it has none.
  ASSERT_EQ(Done().size(), 2U);
  EXPECT_EQ(Done().front().rfind("flush ", 0), 0U) << Done().front();
  EXPECT_EQ(Done().back(), "flush " + NameOf(folder.Path()));
}

TEST(Durability, FlushesASetting) {
  TemporaryFolder folder;
  RegistryStore store(folder.Path());
  Done().clear();
  store.Write(0, "Key", "Name", std::string("value"));
  EXPECT_EQ(Done(), Safely("registry.json", folder));
}

TEST(Durability, FlushesErrorLogEntriesUnlessRepeated) {
  TemporaryFolder folder;
  ErrorLog log(folder.Path());
  Done().clear();
  for (const std::int32_t number : {1, 1, 1, 2, 1})
    static_cast<orvik::IErrorLog&>(log).LogEntry("a", number, "b", 3, {}, {}, {}, {}, {});
  EXPECT_EQ(Done(), (std::vector<std::string>(3, "flush error.log")));
}

}  // namespace
}  // namespace host
