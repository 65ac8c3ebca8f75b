#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "host/base/RegistryStore.h"
#include "tests/support/Errors.h"
#include "tests/support/Seed.h"
#include "tests/support/TemporaryFolder.h"

namespace host {
namespace {

using orvik::HostError;
using orvik::Variant;
using support::ErrorNumber;
using support::ErrorText;
using support::Holds;
using support::TemporaryFolder;

constexpr auto kStoreHive = static_cast<std::int32_t>(0x80000002U);
constexpr char kStoreKey[] = "Software\\Telvane\\orvik\\KELD(IN)";
constexpr char kInner[] = "Software\\Telvane\\orvik\\KELD(IN)\\MTI";

TEST(RegistryStore, IsEmptyWithoutAFileAndCreatesNone) {
  TemporaryFolder folder;
  const RegistryStore store(folder.Path());
  EXPECT_FALSE(store.HasKey(kStoreHive, kStoreKey));
  EXPECT_EQ(store.Read(kStoreHive, kStoreKey, "LastMTI"), Variant());
  EXPECT_TRUE(store.Names(kStoreHive, kStoreKey).empty());
  EXPECT_EQ(folder.Count(), 0U);
}

TEST(RegistryStore, ReadsValuesOfAnotherProgram) {
  TemporaryFolder folder;
  RegistryStore(folder.Path()).Write(kStoreHive, kStoreKey, "LastMTI", "A\\\"\xC3\xB8\n17");
  RegistryStore(folder.Path()).Write(kStoreHive, kInner, "A17", std::int32_t{-35});
  const RegistryStore store(folder.Path());
  EXPECT_EQ(store.Read(kStoreHive, kStoreKey, "LastMTI"), Variant("A\\\"\xC3\xB8\n17"));
  EXPECT_EQ(store.Read(kStoreHive, kInner, "A17"), Variant(std::int32_t{-35}));
}

TEST(RegistryStore, IsEmptyAndReadOnlyWithoutAFolder) {
  RegistryStore store({});
  EXPECT_FALSE(store.HasKey(0, "Key"));
  EXPECT_EQ(store.Read(0, "Key", "v"), orvik::Variant());
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { store.Write(0, "Key", "v", std::string("x")); }), "--state"));
  store.StandIn(0, "Key", "v", "text");
  EXPECT_EQ(store.Read(0, "Key", "v"), orvik::Variant(std::string("text")));
  EXPECT_FALSE(std::filesystem::exists("registry.json"));
}

TEST(RegistryStore, FirstWriteCreatesTheStateFolder) {
  TemporaryFolder folder;
  RegistryStore store(folder.Path() / "a" / "b");
  store.CreateKey(kStoreHive, kStoreKey);
  EXPECT_TRUE(std::filesystem::exists(folder.Path() / "a" / "b" / "registry.json"));
}

TEST(RegistryStore, KeyAboveAKeyExists) {
  TemporaryFolder folder;
  RegistryStore store(folder.Path());
  store.CreateKey(kStoreHive, kInner);
  EXPECT_TRUE(store.HasKey(kStoreHive, kInner));
  EXPECT_TRUE(store.HasKey(kStoreHive, kStoreKey));
  EXPECT_TRUE(store.HasKey(kStoreHive, "Software"));
  EXPECT_FALSE(store.HasKey(kStoreHive, "Soft"));
  EXPECT_FALSE(store.HasKey(kStoreHive, "Software\\Telvane\\orvik\\KELD"));
  EXPECT_FALSE(store.HasKey(static_cast<std::int32_t>(0x80000001U), kStoreKey));
}

TEST(RegistryStore, KeysAndNamesAreCaseSensitive) {
  TemporaryFolder folder;
  RegistryStore store(folder.Path());
  store.Write(kStoreHive, kInner, "a17", std::int32_t{1});
  store.Write(kStoreHive, kInner, "A17", std::int32_t{2});
  EXPECT_EQ(store.Read(kStoreHive, kInner, "a17"), Variant(std::int32_t{1}));
  EXPECT_EQ(store.Read(kStoreHive, kInner, "A17"), Variant(std::int32_t{2}));
}

TEST(RegistryStore, IgnoresExtraBackslashesInKeys) {
  TemporaryFolder folder;
  RegistryStore store(folder.Path());
  store.Write(kStoreHive, "\\Software\\\\X\\", "v", "1");
  EXPECT_EQ(store.Read(kStoreHive, "Software\\X", "v"), Variant("1"));
}

TEST(RegistryStore, ListsNamesAlphabetically) {
  TemporaryFolder folder;
  RegistryStore store(folder.Path());
  for (const auto* name : {"b", "C", "a"}) store.Write(kStoreHive, kInner, name, std::int32_t{1});
  EXPECT_EQ(store.Names(kStoreHive, kInner), (std::vector<std::string>{"C", "a", "b"}));
}

TEST(RegistryStore, RejectsOtherTypesOfValues) {
  TemporaryFolder folder;
  RegistryStore store(folder.Path());
  for (const Variant& value : {Variant(), Variant(1.5), Variant(std::vector<std::string>{"a"})})
    EXPECT_EQ(support::ErrorNumber([&] { store.Write(kStoreHive, kStoreKey, "v", value); }),
              HostError::kTypeMismatch);
  EXPECT_EQ(support::ErrorNumber([&] { store.Write(kStoreHive, kStoreKey, "v", "\xFF"); }),
            HostError::kInvalidArgument);
  EXPECT_FALSE(store.HasKey(kStoreHive, kStoreKey));
}

TEST(RegistryStore, KeepsUnknownEntriesOfTheFile) {
  TemporaryFolder folder;
  folder.Write("registry.json", R"({"format": "orvik registry", "version": 1, "extra": [1, 2],
    "keys": {"HKEY_LOCAL_MACHINE\\X": {"odd": [true], "n": 7}}})");
  RegistryStore store(folder.Path());
  store.Write(kStoreHive, "X", "m", "new");
  EXPECT_TRUE(support::Holds(folder.Read("registry.json"), "\"extra\""));
  EXPECT_TRUE(support::Holds(folder.Read("registry.json"), "\"odd\""));
  EXPECT_EQ(store.Read(kStoreHive, "X", "n"), Variant(std::int32_t{7}));
}

TEST(RegistryStore, NamesValuesOfAnotherTypeInTheFile) {
  TemporaryFolder folder;
  folder.Write("registry.json", R"({"format": "orvik registry", "version": 1,
    "keys": {"HKEY_LOCAL_MACHINE\\X": {"big": 2147483648, "real": 1.5, "flag": true, "min": -2147483648}}})");
  const RegistryStore store(folder.Path());
  for (const auto* name : {"big", "real", "flag"}) {
    const auto text = support::ErrorText([&] { store.Read(kStoreHive, "X", name); });
    EXPECT_TRUE(support::Holds(text, "registry.json"));
    EXPECT_TRUE(support::Holds(text, name));
  }
  EXPECT_EQ(store.Read(kStoreHive, "X", "min"), Variant(std::numeric_limits<std::int32_t>::min()));
}

class DamagedRegistry : public ::testing::TestWithParam<std::string> {};

TEST_P(DamagedRegistry, IsRejectedByNameAndNotChanged) {
  TemporaryFolder folder;
  folder.Write("registry.json", GetParam());
  RegistryStore store(folder.Path());
  for (const auto& text : {support::ErrorText([&] { store.HasKey(kStoreHive, kStoreKey); }),
                           support::ErrorText([&] { store.Read(kStoreHive, kStoreKey, "v"); }),
                           support::ErrorText([&] { store.Write(kStoreHive, kStoreKey, "v", "1"); }),
                           support::ErrorText([&] { store.CreateKey(kStoreHive, kStoreKey); })}) {
    EXPECT_TRUE(support::Holds(text, "registry.json cannot be used"));
    EXPECT_TRUE(support::Holds(text, "left as it is"));
  }
  EXPECT_EQ(folder.Read("registry.json"), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Files, DamagedRegistry,
    ::testing::Values("", "{", "garbage \x01\xFF", "[]", "null", "{}",
                      R"({"format": "orvik registry", "version": 1, "keys": {"X": {"a": "cut sh)",
                      R"({"format": "something else", "version": 1, "keys": {}})",
                      R"({"format": "orvik registry", "version": 2, "keys": {}})",
                      R"({"format": "orvik registry", "version": "1", "keys": {}})",
                      R"({"format": "orvik registry", "version": 1})",
                      R"({"format": "orvik registry", "version": 1, "keys": []})",
                      R"({"format": "orvik registry", "version": 1, "keys": {"X": 1}})",
                      std::string(100000, '['), "{\"a\":" + std::string(100000, '[')));

TEST(RegistryStore, RejectsAFolderOfThatName) {
  TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() / "registry.json");
  const RegistryStore store(folder.Path());
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { store.HasKey(kStoreHive, kStoreKey); }), "registry.json"));
}

TEST(RegistryStore, ReportsAHeldLockAndWritesNothing) {
  TemporaryFolder folder;
  RegistryStore store(folder.Path());
  store.Write(kStoreHive, kStoreKey, "v", "old");
  const int lock = open((folder.Path() / "registry.lock").c_str(), O_RDWR);
  ASSERT_EQ(flock(lock, LOCK_EX), 0);
  const auto text = support::ErrorText([&] { store.Write(kStoreHive, kStoreKey, "v", "new"); });
  EXPECT_TRUE(support::Holds(text, "registry.lock is held by another program"));
  EXPECT_EQ(store.Read(kStoreHive, kStoreKey, "v"), Variant("old")) << "reading needs no lock";
  close(lock);
  store.Write(kStoreHive, kStoreKey, "v", "new");
  EXPECT_EQ(store.Read(kStoreHive, kStoreKey, "v"), Variant("new"));
}

TEST(RegistryStore, SeesAChangeByAnotherProgram) {
  TemporaryFolder folder;
  const RegistryStore reader(folder.Path());
  RegistryStore writer(folder.Path());
  for (int i = 0; i < 20; ++i) {
    writer.Write(kStoreHive, kStoreKey, "v", i);
    EXPECT_EQ(reader.Read(kStoreHive, kStoreKey, "v"), Variant(i));
  }
}

TEST(RegistryStore, TwoProgramsLoseNoChanges) {
  TemporaryFolder folder;
  constexpr int kPrograms = 4;
  constexpr int kValues = 25;
  std::vector<pid_t> children;
  for (int program = 0; program < kPrograms; ++program) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      RegistryStore store(folder.Path());
      int written = 0;
      while (written < kValues) {
        const auto name = std::to_string(program) + "-" + std::to_string(written);
        // On a loaded machine the wait for the others may run out: then it is tried again.
        if (support::ErrorNumber([&] { store.Write(kStoreHive, kInner, name, written); }) == 0) ++written;
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
  EXPECT_EQ(RegistryStore(folder.Path()).Names(kStoreHive, kInner).size(), std::size_t{kPrograms * kValues});
}

TEST(RegistryStore, KilledWriterLeavesACompleteFile) {
  std::mt19937 random(support::Seed());
  TemporaryFolder folder;
  RegistryStore(folder.Path()).Write(kStoreHive, kStoreKey, "kept", "kept");
  for (int round = 0; round < 10; ++round) {
    int progress[2];
    ASSERT_EQ(pipe(progress), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      RegistryStore store(folder.Path());
      for (int i = 0;; ++i) {
        store.Write(kStoreHive, kInner, "big", std::string(20000, static_cast<char>('a' + i % 26)));
        [[maybe_unused]] const auto told = write(progress[1], "x", 1);
      }
    }
    // Killed somewhere in the write after a random number of finished ones.
    for (auto left = 1 + random() % 5; left > 0; --left) {
      char byte = 0;
      ASSERT_EQ(read(progress[0], &byte, 1), 1);
    }
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(progress[0]);
    close(progress[1]);
    const RegistryStore store(folder.Path());
    EXPECT_EQ(store.Read(kStoreHive, kStoreKey, "kept"), Variant("kept"));
    const auto value = std::get<std::string>(store.Read(kStoreHive, kInner, "big"));
    EXPECT_EQ(value, std::string(20000, value.front()));
  }
}

TEST(RegistryStore, ReadsAnOverrideWithoutWritingIt) {
  TemporaryFolder folder;
  RegistryStore store(folder.Path());
  store.StandIn(kStoreHive, kStoreKey, "Configuration", "<catalogue/>");
  EXPECT_TRUE(store.HasKey(kStoreHive, kStoreKey));
  EXPECT_EQ(store.Read(kStoreHive, kStoreKey, "Configuration"), Variant("<catalogue/>"));
  EXPECT_EQ(store.Names(kStoreHive, kStoreKey), std::vector<std::string>{"Configuration"});
  EXPECT_EQ(folder.Count(), 0U);
  store.Write(kStoreHive, kStoreKey, "LastMTI", "17");
  EXPECT_EQ(folder.Read("registry.json").find("catalogue"), std::string::npos);
  EXPECT_EQ(store.Names(kStoreHive, kStoreKey), (std::vector<std::string>{"Configuration", "LastMTI"}));
}

}  // namespace
}  // namespace host
