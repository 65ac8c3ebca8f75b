#include <gtest/gtest.h>

#include "host/base/ErrorLog.h"
#include "host/base/RegistryReader.h"
#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"

namespace host {
namespace {

using orvik::HostError;
using orvik::Variant;
using support::ErrorNumber;
using support::Holds;

constexpr auto kHive = static_cast<std::int32_t>(0x80000002U);

class RegistryReaderTest : public ::testing::Test {
 protected:
  RegistryReader Reader() {
    return {std::make_shared<RegistryStore>(folder_.Path()), std::make_shared<ErrorLog>(folder_.Path())};
  }

  support::TemporaryFolder folder_;
};

TEST_F(RegistryReaderTest, DoesNotOpenAMissingKey) {
  auto reader = Reader();
  EXPECT_FALSE(reader.OpenKey(kHive, "Software\\X"));
  EXPECT_FALSE(reader.IsOpen());
  EXPECT_EQ(reader.ReadValue("v"), Variant());
  EXPECT_TRUE(reader.ValueNames().empty());
  EXPECT_EQ(support::ErrorNumber([&] { reader.WriteValue("v", "1"); }), HostError::kInvalidArgument);
}

TEST_F(RegistryReaderTest, CreatedKeyIsOpenAndVisibleToOthers) {
  auto reader = Reader();
  EXPECT_TRUE(reader.CreateKey(kHive, "Software\\X"));
  EXPECT_TRUE(reader.IsOpen());
  reader.WriteValue("v", std::int32_t{5});
  auto other = Reader();
  EXPECT_TRUE(other.OpenKey(kHive, "Software\\X"));
  EXPECT_EQ(other.ReadValue("v"), Variant(std::int32_t{5}));
  EXPECT_EQ(other.ReadValue("w"), Variant());
  EXPECT_EQ(other.ValueNames(), std::vector<std::string>{"v"});
}

TEST_F(RegistryReaderTest, WritesAGuardedKeyThroughItsGuard) {
  const auto store = std::make_shared<RegistryStore>(folder_.Path());
  RegistryReader reader(store, std::make_shared<ErrorLog>(folder_.Path()));
  std::vector<std::string> seen;
  {
    const auto guard =
        store->GuardWrites(kHive, "Software\\\\X\\", [&](const std::string& name, const Variant& value) {
          seen.push_back(name + "=" + std::get<std::string>(value));
        });
    ASSERT_TRUE(reader.CreateKey(kHive, "Software\\X"));
    reader.WriteValue("v", "1");
    EXPECT_EQ(reader.ReadValue("v"), Variant());
    ASSERT_TRUE(reader.CreateKey(kHive, "Software\\Y"));
    reader.WriteValue("v", "2");
    EXPECT_EQ(reader.ReadValue("v"), Variant("2"));
  }
  ASSERT_TRUE(reader.OpenKey(kHive, "Software\\X"));
  reader.WriteValue("v", "3");
  EXPECT_EQ(reader.ReadValue("v"), Variant("3"));
  EXPECT_EQ(seen, std::vector<std::string>{"v=1"});
}

TEST_F(RegistryReaderTest, FailedOpenClosesTheKeyThatWasOpen) {
  auto reader = Reader();
  ASSERT_TRUE(reader.CreateKey(kHive, "Software\\X"));
  EXPECT_FALSE(reader.OpenKey(kHive, "Software\\Y"));
  EXPECT_FALSE(reader.IsOpen());
}

TEST_F(RegistryReaderTest, FailedCreationClosesTheKeyThatWasOpen) {
  auto reader = Reader();
  ASSERT_TRUE(reader.CreateKey(kHive, "Software\\X"));
  std::filesystem::permissions(folder_.Path() / "registry.json", std::filesystem::perms::owner_read);
  EXPECT_FALSE(reader.CreateKey(kHive, "Software\\Y"));
  EXPECT_FALSE(reader.IsOpen());
}

TEST_F(RegistryReaderTest, LogsADamagedStoreAndDoesNotOpen) {
  folder_.Write("registry.json", "{ cut");
  auto reader = Reader();
  EXPECT_FALSE(reader.OpenKey(kHive, "Software\\X"));
  EXPECT_FALSE(reader.CreateKey(kHive, "Software\\X"));
  EXPECT_TRUE(support::Holds(folder_.Read("error.log"), "registry.json cannot be used"));
  EXPECT_EQ(folder_.Read("registry.json"), "{ cut");
}

TEST_F(RegistryReaderTest, LogsAndRethrowsAFailedWrite) {
  auto reader = Reader();
  ASSERT_TRUE(reader.CreateKey(kHive, "Software\\X"));
  std::filesystem::permissions(folder_.Path() / "registry.json", std::filesystem::perms::owner_read);
  EXPECT_EQ(support::ErrorNumber([&] { reader.WriteValue("v", "1"); }), HostError::kPathError);
  EXPECT_TRUE(support::Holds(folder_.Read("error.log"), "registry.json is write-protected"));
}

}  // namespace
}  // namespace host
