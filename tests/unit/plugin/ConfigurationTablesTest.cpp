#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/configuration/ConfigurationTables.h"

namespace {

namespace Tables = keld::configuration::ConfigurationTables;

struct OptionRow {
  std::int32_t bit;
  const char* key;
  const char* caption;
  const char* report;  ///< the line about the leads if this option is the first one
};

constexpr char kNoLeads[] = "20914::No leads tested.";

const std::vector<OptionRow> kOptionRows = {
    {1, "NA key", "20784::Enable NA button in test guide", kNoLeads},
    {2, "Skip key", "20773::Enable skip button in test guide", kNoLeads},
    {4, "Lead 1 key", "20774::Lead 1", "20902::Lead number 1 tested."},
    {8, "Lead 2 key", "20775::Lead 2", "20903::Lead number 2 tested."},
    {16, "Lead 3 key", "20776::Lead 3", "20904::Lead number 3 tested."},
    {32, "Lead 4 key", "20777::Lead 4", "20905::Lead number 4 tested."},
    {64, "Lead 5 key", "20778::Lead 5", "20906::Lead number 5 tested."},
    {128, "Lead 6 key", "20779::Lead 6", "20907::Lead number 6 tested."},
    {256, "Lead 7 key", "20780::Lead 7", "20908::Lead number 7 tested."},
    {512, "Lead 8 key", "20781::Lead 8", "20909::Lead number 8 tested."},
    {1024, "Lead 9 key", "20782::Lead 9", "20910::Lead number 9 tested."},
    {2048, "Lead 10 key", "20783::Lead 10", "20911::Lead number 10 tested."},
    {4096, "All leads key", "20785::All Leads", "20912::All leads tested."},
};

TEST(ConfigurationTables, OfferOptionsByTestIdentifier) {
  const std::vector<std::pair<std::size_t, std::vector<int>>> rows = {
      {2, {0, 100, 210, 410, 909, 966, 1000, 1109, 1166, 1210, 1240, -910, 32767}},
      {12, {1110, 1111, 1140, 1164, 1165}},
      {13, {910, 911, 940, 964, 965}}};
  for (const auto& [count, ids] : rows)
    for (const int id : ids) {
      const auto options = Tables::OptionsFor(static_cast<std::int16_t>(id));
      ASSERT_EQ(options.size(), count) << id;
      for (std::size_t i = 0; i < count; ++i) {
        EXPECT_EQ(options[i].lBit, kOptionRows[i].bit) << id;
        EXPECT_STREQ(options[i].sKey, kOptionRows[i].key) << id;
        EXPECT_STREQ(options[i].sCaption, kOptionRows[i].caption) << id;
      }
    }
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

TEST(ConfigurationTables, NameTheFourValueFilters) {
  const std::vector<std::string> names = {"No values", "All values", "Maximum value", "Minimum value"};
  const auto captions = Tables::ValueFilterCaptions();
  ASSERT_EQ(captions.size(), 4U);
  for (std::int32_t code = 1; code <= 4; ++code) {
    const std::string& name = names[code - 1];
    EXPECT_EQ(captions[code - 1], std::to_string(20701 + code) + "::" + name);
    EXPECT_EQ(Tables::ValueFilterName(code), name);
    EXPECT_EQ(Tables::ValueFilterCode(name), code);
  }
  for (const std::int32_t code : {0, -1, 5, 2147483647}) EXPECT_EQ(Tables::ValueFilterName(code), "") << code;
  for (const char* name : {"", "no values", "No values ", "20702::No values", "Mean value"})
    EXPECT_EQ(Tables::ValueFilterCode(name), 0) << name;
}

TEST(ConfigurationTables, ReportTheFirstSelectedLeadOnly) {
  std::int32_t fromHere = 8191;
  for (const auto& row : kOptionRows) {
    EXPECT_STREQ(Tables::LeadText(910, row.bit), row.report);
    if (row.bit >= 4) {
      EXPECT_STREQ(Tables::LeadText(910, row.bit | 3), row.report);
      EXPECT_STREQ(Tables::LeadText(410, fromHere), row.report) << "with all later leads";
    }
    fromHere -= row.bit;
  }
  for (const std::int32_t options : {0, 3, 8192}) EXPECT_STREQ(Tables::LeadText(910, options), kNoLeads);
}

TEST(ConfigurationTables, ReportFixedLeadsForSomeTests) {
  for (const std::int32_t options : {0, 3, 4, 20, 4096, -1}) {
    for (const int id : {1210, 1230, 1240})
      EXPECT_STREQ(Tables::LeadText(static_cast<std::int16_t>(id), options), "20912::All leads tested.")
          << id;
    EXPECT_STREQ(Tables::LeadText(1220, options), "20913::Some leads tested.") << options;
  }
  for (const int id : {1235, 1245, 1211, 1200})
    EXPECT_STREQ(Tables::LeadText(static_cast<std::int16_t>(id), 4), "20902::Lead number 1 tested.") << id;
}

}  // namespace
