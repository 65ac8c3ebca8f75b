#include <gtest/gtest.h>

#include "host/standards/LimitSet.h"
#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;
using support::TemporaryFolder;

constexpr char kGood[] =
    "<LimitSet Version='1' Standard='Own' Edition='2026' Class='I' Type='BF'>\n"
    "  <Figure Tests='410, 420' High='300' Unit='mOhm' Condition='with cord' Source='manual, page 7'/>\n"
    "  <!-- a remark -->\n"
    "  <Figure Tests='1010' Low='2' Unit='MOhm' Source='manual, page 8'/>\n"
    "  <LeftOut What='the rest' Why='not there'/>\n"
    "</LimitSet>\n";

TEST(LimitSetTest, ReadsEveryField) {
  TemporaryFolder folder;
  const auto set = standards::ReadLimitSet(folder.Write("own-set.xml", kGood));
  EXPECT_EQ(set.Name(), "own-set");
  EXPECT_EQ(set.standard, "Own");
  EXPECT_EQ(set.Description(), "2026, class I, type BF");
  ASSERT_EQ(set.figures.size(), 2U);
  EXPECT_EQ(set.figures[0].tests, (std::vector<std::int32_t>{410, 420}));
  EXPECT_EQ(set.figures[0].high, "300");
  EXPECT_EQ(set.figures[0].low, "");
  EXPECT_EQ(set.figures[0].unit, "mOhm");
  EXPECT_EQ(set.figures[0].condition, "with cord");
  EXPECT_EQ(set.figures[0].source, "manual, page 7");
  EXPECT_EQ(set.figures[1].low, "2");
  ASSERT_EQ(set.leftOut.size(), 1U);
  EXPECT_EQ(set.leftOut[0].why, "not there");
  EXPECT_EQ(set.FigureFor(420), &set.figures[0]);
  EXPECT_EQ(set.FigureFor(1010), &set.figures[1]);
  EXPECT_EQ(set.FigureFor(210), nullptr);
}

TEST(LimitSetTest, ClassAndTypeMayBeMissing) {
  TemporaryFolder folder;
  const auto set = standards::ReadLimitSet(folder.Write(
      "a.xml",
      "<LimitSet Version='1' Standard='S' Edition='1'><Figure Tests='1' Low='0' Unit='V' Source='s'/>"
      "</LimitSet>"));
  EXPECT_EQ(set.Description(), "1");
}

struct Bad {
  const char* name;
  const char* from;  ///< part of the good set that is replaced
  const char* to;
  const char* told;
};

class BadLimitSet : public testing::TestWithParam<Bad> {};

TEST_P(BadLimitSet, IsRejectedWithFileLineAndReason) {
  TemporaryFolder folder;
  std::string text = kGood;
  const auto at = text.find(GetParam().from);
  ASSERT_NE(at, std::string::npos);
  text.replace(at, std::string(GetParam().from).size(), GetParam().to);
  const std::filesystem::path file = folder.Write("bad.xml", text);
  const auto error = support::ErrorText([&] { standards::ReadLimitSet(file); });
  EXPECT_TRUE(support::Holds(error, file.string() + ", line "));
  EXPECT_TRUE(support::Holds(error, GetParam().told));
}

INSTANTIATE_TEST_SUITE_P(
    Table, BadLimitSet,
    testing::Values(
        Bad{"Malformed", "Source='manual, page 8'/>", "Source='manual, page 8'>", "line 6"},
        Bad{"AnotherKind", "<LimitSet", "<Limits", "line 6"},
        Bad{"NoVersion", "Version='1'", "", "line 1: the attribute \"Version\""},
        Bad{"Newer", "Version='1'", "Version='2'", "line 1: the set was written for a newer version"},
        Bad{"Older", "Version='1'", "Version='0'", "line 1: format 0 of sets of limits"},
        Bad{"NoStandard", "Standard='Own'", "", "line 1: \"LimitSet\" needs the attribute \"Standard\""},
        Bad{"NoEdition", "Edition='2026'", "Edition=''",
            "line 1: \"LimitSet\" needs the attribute \"Edition\""},
        Bad{"NoSource", "Source='manual, page 7'", "", "line 2: \"Figure\" needs the attribute \"Source\""},
        Bad{"NoUnit", "Unit='mOhm'", "", "line 2: \"Figure\" needs the attribute \"Unit\""},
        Bad{"NoTests", "Tests='1010'", "", "line 4: \"Figure\" needs the attribute \"Tests\""},
        Bad{"BlankTests", "Tests='1010'", "Tests=' , '", "line 4: the figure names no test"},
        Bad{"TestNoNumber", "'410, 420'", "'410, x'", "line 2: \"x\" is not a test"},
        Bad{"TestBelowOne", "'410, 420'", "'0'", "line 2: \"0\" is not a test"},
        Bad{"TestTwice", "'1010'", "'420'", "line 4: test 420 has a figure already"},
        Bad{"TestTwiceInOne", "'410, 420'", "'410 410'", "line 2: test 410 has a figure already"},
        Bad{"NoBound", "High='300'", "", "line 2: the figure has neither"},
        Bad{"EmptyBound", "High='300'", "High=''", "line 2: the bound \"\" is not a number"},
        Bad{"BoundNoNumber", "High='300'", "High='0,3'", "line 2: the bound \"0,3\" is not a number"},
        Bad{"BoundInPercent", "High='300'", "High='110%'", "line 2: the bound \"110%\" is not a number"},
        Bad{"BoundsCrossed", "High='300'", "Low='301' High='300'", "line 2: the lower bound is above"},
        Bad{"MisspeltBound", "Low='2'", "Low='2' Hihg='9'", "line 4: the attribute \"Hihg\""},
        Bad{"AttributeTwice", "Low='2'", "Low='2' Low='1'", "line 4: the attribute \"Low\""},
        Bad{"UnknownElement", "<LeftOut", "<Omitted", "line 5: the element \"Omitted\" is not known"},
        Bad{"Text", "<!-- a remark -->", "High 300", "line 1: \"LimitSet\" holds text"},
        Bad{"LeftOutWithoutReason", "Why='not there'", "", "line 5: \"LeftOut\" needs the attribute \"Why\""},
        Bad{"NotUtf8", "with cord", "with \xE6 cord", "line 2: there are bytes that are not UTF-8"}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST(LimitSetTest, RejectsOtherDocumentsAndEmptySets) {
  TemporaryFolder folder;
  const std::filesystem::path other = folder.Write("other.xml", "\n<OrvikDocument Version='1'/>");
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { standards::ReadLimitSet(other); }),
                             "other.xml, line 2: this is not a set of limits"));
  const std::filesystem::path empty =
      folder.Write("empty.xml", "<LimitSet Version='1' Standard='S' Edition='1'/>");
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { standards::ReadLimitSet(empty); }),
                             "empty.xml, line 1: the set has no figures"));
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { standards::ReadLimitSet(folder.Path() / "none.xml"); }),
                             "none.xml"));
}

}  // namespace
}  // namespace host
