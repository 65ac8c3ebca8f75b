#include <gtest/gtest.h>

#include "host/standards/LimitSets.h"
#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;
using support::TemporaryFolder;

std::string SetText(const std::string& standard) {
  return "<LimitSet Version='1' Standard='" + standard +
         "' Edition='1'><Figure Tests='410' High='300' Unit='mOhm' Source='s'/></LimitSet>";
}

class LimitSetsTest : public testing::Test {
 protected:
  TemporaryFolder first_, second_;
  standards::LimitSets sets_{{first_.Path(), second_.Path(), first_.Path() / "absent"}};
};

TEST_F(LimitSetsTest, AreListedByFolderAndName) {
  first_.Write("b.xml", SetText("B"));
  first_.Write("a.xml", SetText("A"));
  first_.Write("notes.txt", "no set");
  second_.Write("aa.xml", "<LimitSet>\n</LimitSet>");
  const auto all = sets_.All();
  ASSERT_EQ(all.size(), 3U);
  EXPECT_EQ(all[0].set->standard, "A");
  EXPECT_EQ(all[1].set->standard, "B");
  EXPECT_FALSE(all[2].set);
  EXPECT_TRUE(support::Holds(all[2].fault, "aa.xml, line 1"));
}

TEST_F(LimitSetsTest, IsFoundByNameInEachFolderAndByPath) {
  first_.Write("a.xml", SetText("A"));
  second_.Write("b.xml", SetText("B"));
  TemporaryFolder elsewhere;
  EXPECT_EQ(sets_.Find("a").standard, "A");
  EXPECT_EQ(sets_.Find("b").standard, "B");
  EXPECT_EQ(sets_.Find(elsewhere.Write("c.xml", SetText("C"))).standard, "C");
  EXPECT_EQ(sets_.Find(elsewhere.Write("d", SetText("D"))).standard, "D");
}

TEST_F(LimitSetsTest, NamesAMissingSet) {
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { sets_.Find("none"); }), "unknown set of limits \"none\""));
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { sets_.Find("/nowhere/none.xml"); }), "/nowhere/none.xml"));
}

TEST_F(LimitSetsTest, TwoOfTheSameNameAreNeverConfused) {
  first_.Write("a.xml", SetText("A"));
  second_.Write("a.xml", SetText("B"));
  const auto error = support::ErrorText([&] { sets_.Find("a"); });
  EXPECT_TRUE(support::Holds(error, (first_.Path() / "a.xml").string()));
  EXPECT_TRUE(support::Holds(error, (second_.Path() / "a.xml").string()));
  EXPECT_EQ(sets_.Find((second_.Path() / "a.xml").string()).standard, "B");
}

}  // namespace
}  // namespace host
