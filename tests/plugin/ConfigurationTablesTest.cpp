#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/ConfigurationTables.h"

namespace {

namespace Tables = keld::ConfigurationTables;

struct OptionRow {
  std::int32_t bit;
  const char* key;
  const char* caption;
};

const std::vector<OptionRow> kOptionRows = {
    {1, "NA key", "20784::Enable NA button in test guide"},
    {2, "Skip key", "20773::Enable skip button in test guide"},
    {4, "Lead 1 key", "20774::Lead 1"},
    {8, "Lead 2 key", "20775::Lead 2"},
    {16, "Lead 3 key", "20776::Lead 3"},
    {32, "Lead 4 key", "20777::Lead 4"},
    {64, "Lead 5 key", "20778::Lead 5"},
    {128, "Lead 6 key", "20779::Lead 6"},
    {256, "Lead 7 key", "20780::Lead 7"},
    {512, "Lead 8 key", "20781::Lead 8"},
    {1024, "Lead 9 key", "20782::Lead 9"},
    {2048, "Lead 10 key", "20783::Lead 10"},
    {4096, "All leads key", "20785::All Leads"},
};

std::vector<std::string> KeysFor(int testId) {
  std::vector<std::string> keys;
  for (const auto& option : Tables::OptionsFor(static_cast<std::int16_t>(testId)))
    keys.push_back(option.sKey);
  return keys;
}

std::vector<std::string> FirstKeys(std::size_t count) {
  std::vector<std::string> keys;
  for (std::size_t i = 0; i < count; ++i) keys.push_back(kOptionRows[i].key);
  return keys;
}

TEST(ConfigurationTables, HoldEveryOptionInOrder) {
  const auto options = Tables::OptionsFor(910);
  ASSERT_EQ(options.size(), kOptionRows.size());
  for (std::size_t i = 0; i < options.size(); ++i) {
    EXPECT_EQ(options[i].lBit, kOptionRows[i].bit);
    EXPECT_STREQ(options[i].sKey, kOptionRows[i].key);
    EXPECT_STREQ(options[i].sCaption, kOptionRows[i].caption);
  }
}

TEST(ConfigurationTables, OfferTheTwoButtonsToEveryElement) {
  for (const int id : {0, 100, 210, 410, 909, 966, 1000, 1109, 1166, 1210, 1240, -910, 32767}) {
    EXPECT_EQ(KeysFor(id), FirstKeys(2)) << id;
  }
}

TEST(ConfigurationTables, OfferTenLeadsFrom1110To1165) {
  for (const int id : {1110, 1111, 1140, 1164, 1165}) EXPECT_EQ(KeysFor(id), FirstKeys(12)) << id;
}

TEST(ConfigurationTables, OfferTenLeadsAndAllLeadsFrom910To965) {
  for (const int id : {910, 911, 940, 964, 965}) EXPECT_EQ(KeysFor(id), FirstKeys(13)) << id;
}

TEST(ConfigurationTables, KnowTheBitOfEveryKey) {
  for (const auto& row : kOptionRows) {
    EXPECT_EQ(Tables::BitOf(row.key), row.bit) << row.key;
    EXPECT_EQ(Tables::IsLead(row.key), row.bit >= 4) << row.key;
  }
  for (const char* key : {"", "NA", "na key", "Lead 11 key", "Lead 1 key "}) {
    EXPECT_EQ(Tables::BitOf(key), 0) << key;
    EXPECT_FALSE(Tables::IsLead(key)) << key;
  }
}

TEST(ConfigurationTables, NameTheValueFilters) {
  const std::vector<std::string> names = {"No values", "All values", "Maximum value", "Minimum value"};
  const std::vector<std::string> captions = {"20702::No values", "20703::All values", "20704::Maximum value",
                                             "20705::Minimum value"};
  const auto shown = Tables::ValueFilterCaptions();
  EXPECT_EQ((std::vector<std::string>(shown.begin(), shown.end())), captions);
  for (std::int32_t code = 1; code <= 4; ++code) {
    EXPECT_EQ(Tables::ValueFilterName(code), names[code - 1]);
    EXPECT_EQ(Tables::ValueFilterCode(names[code - 1]), code);
  }
}

TEST(ConfigurationTables, HaveNoFilterOutsideTheFour) {
  for (const std::int32_t code : {0, -1, 5, 2147483647}) EXPECT_EQ(Tables::ValueFilterName(code), "") << code;
  for (const char* name : {"", "no values", "No values ", "20702::No values", "Mean value"}) {
    EXPECT_EQ(Tables::ValueFilterCode(name), 0) << name;
  }
}

TEST(ConfigurationTables, NameTheLeadOfEachBit) {
  const std::vector<std::pair<std::int32_t, std::string>> rows = {
      {4, "20902::Lead number 1 tested."},    {8, "20903::Lead number 2 tested."},
      {16, "20904::Lead number 3 tested."},   {32, "20905::Lead number 4 tested."},
      {64, "20906::Lead number 5 tested."},   {128, "20907::Lead number 6 tested."},
      {256, "20908::Lead number 7 tested."},  {512, "20909::Lead number 8 tested."},
      {1024, "20910::Lead number 9 tested."}, {2048, "20911::Lead number 10 tested."},
      {4096, "20912::All leads tested."},
  };
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(Tables::LeadText(910, rows[i].first), rows[i].second);
    EXPECT_EQ(Tables::LeadText(910, rows[i].first | 3), rows[i].second);
    // With every later lead set as well the first one alone is named.
    std::int32_t fromHere = 0;
    for (std::size_t k = i; k < rows.size(); ++k) fromHere |= rows[k].first;
    EXPECT_EQ(Tables::LeadText(410, fromHere), rows[i].second);
  }
}

TEST(ConfigurationTables, TellThatNoLeadWasTested) {
  for (const std::int32_t options : {0, 1, 2, 3, 8192}) {
    EXPECT_STREQ(Tables::LeadText(910, options), "20914::No leads tested.") << options;
  }
}

TEST(ConfigurationTables, TellLeadsOfSomeTestsWhateverTheOptions) {
  for (const std::int32_t options : {0, 3, 4, 20, 4096, -1}) {
    for (const std::int16_t id : std::vector<std::int16_t>{1210, 1230, 1240}) {
      EXPECT_STREQ(Tables::LeadText(id, options), "20912::All leads tested.") << id;
    }
    EXPECT_STREQ(Tables::LeadText(1220, options), "20913::Some leads tested.") << options;
  }
  for (const std::int16_t id : std::vector<std::int16_t>{1235, 1245, 1211, 1200}) {
    EXPECT_STREQ(Tables::LeadText(id, 4), "20902::Lead number 1 tested.") << id;
  }
}

}  // namespace
