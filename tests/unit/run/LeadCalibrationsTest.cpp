#include <gtest/gtest.h>

#include <fstream>

#include "host/plugins/keld/KeldNames.h"
#include "host/run/LeadCalibrations.h"
#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"

namespace host {
namespace {

using support::TemporaryFolder;

constexpr char kWhen[] = "2026-11-22T14:03:22+01:00";
constexpr char kLater[] = "2026-11-23T08:00:00+01:00";

class LeadCalibrationsTest : public testing::Test {
 protected:
  void WriteElsewhere(const std::string& serial, const orvik::Variant& value) {
    RegistryStore(folder_.Path())
        .Write(plugins::keld::kRegistryHive, plugins::keld::kLeadsKey, serial, value);
  }

  TemporaryFolder folder_;
  RegistryStore registry_{folder_.Path()};
};

TEST_F(LeadCalibrationsTest, ListsEachTesterWithItsDate) {
  run::StoreLeads(registry_, "B-2", 35, kWhen);
  run::StoreLeads(registry_, "A-1", 0, kLater);
  const auto all = run::StoredLeads(RegistryStore(folder_.Path()));
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0].serial, "A-1");
  EXPECT_EQ(all[0].milliohms, 0);
  EXPECT_EQ(all[0].measured, kLater);
  EXPECT_EQ(all[1].serial, "B-2");
  EXPECT_EQ(all[1].milliohms, 35);
  EXPECT_EQ(all[1].measured, kWhen);
}

TEST_F(LeadCalibrationsTest, NothingIsStoredAtFirst) {
  EXPECT_TRUE(run::StoredLeads(registry_).empty());
  EXPECT_FALSE(run::StoredLeadsOf(registry_, "A-1"));
  EXPECT_FALSE(run::LeadsMeasured(registry_, "A-1", 0));
  EXPECT_EQ(folder_.Count(), 0U);
}

TEST_F(LeadCalibrationsTest, AValueWrittenElsewhereHasNoDate) {
  run::StoreLeads(registry_, "A-1", 35, kWhen);
  WriteElsewhere("A-1", std::int32_t{36});
  const auto stored = run::StoredLeadsOf(registry_, "A-1");
  ASSERT_TRUE(stored);
  EXPECT_EQ(stored->milliohms, 36);
  EXPECT_FALSE(stored->measured);
  EXPECT_EQ(run::LeadsMeasured(registry_, "A-1", 35), kWhen);
  EXPECT_FALSE(run::LeadsMeasured(registry_, "A-1", 36));
  EXPECT_FALSE(run::LeadsMeasured(registry_, "A-2", 35));
}

TEST_F(LeadCalibrationsTest, AnotherMeasurementReplacesValueAndDate) {
  run::StoreLeads(registry_, "A-1", 35, kWhen);
  run::StoreLeads(registry_, "A-1", 40, kLater);
  EXPECT_EQ(run::StoredLeadsOf(registry_, "A-1")->milliohms, 40);
  EXPECT_EQ(run::StoredLeadsOf(registry_, "A-1")->measured, kLater);
}

TEST_F(LeadCalibrationsTest, ReadsATextAsThePlugInDoes) {
  const std::pair<const char*, std::optional<std::int32_t>> cases[] = {
      {"35", 35}, {" 125.5 ", 126}, {"124.5", 124}, {"35 mOhm", {}}, {"", {}}, {"3000000000", {}}};
  for (const auto& [text, milliohms] : cases) {
    WriteElsewhere("A-1", text);
    EXPECT_EQ(run::StoredLeadsOf(registry_, "A-1")->milliohms, milliohms) << text;
  }
}

TEST_F(LeadCalibrationsTest, AValueOfAnotherKindIsListedWithoutANumber) {
  std::ofstream(folder_.Path() / "registry.json") << R"({"format": "orvik registry", "version": 1, "keys": {
             "HKEY_LOCAL_MACHINE\\Software\\Telvane\\orvik\\KELD(IN)\\MTI": {"A-1": 3.5, "A-2": 20}}})";
  const auto all = run::StoredLeads(registry_);
  ASSERT_EQ(all.size(), 2U);
  EXPECT_FALSE(all[0].milliohms);
  EXPECT_EQ(all[1].milliohms, 20);
}

TEST_F(LeadCalibrationsTest, ADamagedDateIsNotKnown) {
  run::StoreLeads(registry_, "A-1", 35, "yesterday");
  EXPECT_EQ(run::StoredLeadsOf(registry_, "A-1")->milliohms, 35);
  EXPECT_FALSE(run::StoredLeadsOf(registry_, "A-1")->measured);
}

TEST_F(LeadCalibrationsTest, ADamagedRegistryIsAnError) {
  std::ofstream(folder_.Path() / "registry.json") << "{";
  EXPECT_EQ(support::ErrorNumber([&] { run::StoredLeads(registry_); }), orvik::HostError::kPathError);
}

TEST(LeadCalibration, IsPlausibleFromZeroToHalfAnOhm) {
  const std::pair<std::optional<std::int32_t>, bool> cases[] = {
      {-1, false}, {0, true}, {500, true}, {501, false}, {std::nullopt, false}};
  for (const auto& [milliohms, plausible] : cases)
    EXPECT_EQ((run::LeadCalibration{"A-1", milliohms, {}}.Plausible()), plausible)
        << milliohms.value_or(-999);
}

}  // namespace
}  // namespace host
