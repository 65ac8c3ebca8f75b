#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/gui/GuideJudgement.h"

namespace desktop_test {
namespace {

using host::gui::GuideJudgement;
using host::report::Section;
using host::report::Standing;

Section TestOf(const std::string& name, Standing standing, const std::string& word, int depth = 0) {
  Section section;
  section.name = name;
  section.standing = standing;
  section.word = word;
  section.depth = depth;
  return section;
}

TEST(GuideJudgement, NamesFailedAndPassedStandards) {
  auto earth = TestOf("Protective earth", Standing::kFailed, "failed");
  earth.judgements.push_back(
      {"IEC 62353", "at most 300 mOhm", Standing::kPassed, "within limit", {}, {}, {}, {}, {}});
  earth.judgements.push_back(
      {"IEC 60601-1", "at most 200 mOhm", Standing::kFailed, "exceeded", {}, {}, {}, {}, {}});
  EXPECT_EQ(host::gui::GuideJudgement({earth}),
            "\u2717 Protective earth: failed\n"
            "\u2713 IEC 62353: at most 300 mOhm, within limit\n"
            "\u2717 IEC 60601-1: at most 200 mOhm, exceeded");
}

TEST(GuideJudgement, GivesReasonsOfOpenTests) {
  auto earth = TestOf("Protective earth", Standing::kDoubtful, "doubtful");
  earth.notes.push_back({Standing::kDoubtful, "overload (OL)"});
  EXPECT_EQ(host::gui::GuideJudgement({earth}), "? Protective earth: doubtful\n? overload (OL)");
}

TEST(GuideJudgement, OmitsPassedTestsOfAGroup) {
  EXPECT_EQ(host::gui::GuideJudgement({TestOf("Lead 1", Standing::kPassed, "passed", 1),
                                       TestOf("Lead 2", Standing::kFailed, "failed", 1),
                                       TestOf("Group", Standing::kPassed, "passed")}),
            "\u2717 Lead 2: failed\n\u2713 Group: passed");
}

TEST(GuideJudgement, IsBounded) {
  const auto text =
      host::gui::GuideJudgement(std::vector<Section>(20, TestOf("Lead", Standing::kFailed, "failed", 1)));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 5);
  EXPECT_THAT(text, testing::EndsWith("15 more lines: see the list of tests"));
}

TEST(GuideJudgement, IsEmptyBeforeTheFirstTest) { EXPECT_EQ(host::gui::GuideJudgement({}), ""); }

}  // namespace
}  // namespace desktop_test
