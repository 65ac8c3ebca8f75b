#include <gtest/gtest.h>

#include "OrvikTypeLib/IStandard.h"
#include "host/bench/InputError.h"
#include "host/bench/RunSelection.h"
#include "tests/unit/run/RunFixture.h"

// What a run takes up, and with what a resumed one goes on.
namespace run {
namespace {

using namespace host::plugins::keld::guide;
using Ids = std::vector<std::int32_t>;

class RunSelectionTest : public RunFixture {
 protected:
  Ids Unfinished() {
    const auto judged = host::judge::Judge(*document_, *bench_.Host().Elements());
    Ids ids;
    for (const auto& element : host::bench::Unfinished(support::TopOf(*document_), *document_, judged))
      ids.push_back(element->ID());
    return ids;
  }
  Texts Selected() const {
    Texts names;
    for (std::int32_t i = 1; i <= document_->Standards()->Count(); ++i)
      names.push_back(document_->Standards()->item(i)->Name());
    return names;
  }
  void Select(const Texts& standards) {
    host::bench::SelectStandards(*document_, bench_.Host(), {"a.orvik", {}, standards, false});
  }
};

TEST_F(RunSelectionTest, ResumesWhatHasNoResult) {
  for (const std::int32_t test : {410, 420, 610}) AddLimited(test);
  EXPECT_EQ(Unfinished(), (Ids{1, 2, 3}));
  Run({1});
  EXPECT_EQ(Unfinished(), (Ids{2, 3}));
  Run();
  EXPECT_EQ(Unfinished(), Ids());
}

TEST_F(RunSelectionTest, ResumesAbortedElements) {
  for (const std::int32_t test : {410, 420, 610}) AddLimited(test);
  EXPECT_EQ(RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
                       {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kAbort}}),
            End::kAborted);
  EXPECT_EQ(Unfinished(), (Ids{2, 3}));
}

TEST_F(RunSelectionTest, ResumesDoubtfulAndSkippedElements) {
  for (const std::int32_t test : {410, 420, 610, 620}) AddLimited(test);
  Read("410", "0.1,1,Ohm");
  Read("420", "1.85,0,Ohm");
  RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
             {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
             {host::plugins::keld::guide::kSkip},
             {host::plugins::keld::guide::kNotApplicable}});
  EXPECT_EQ(Verdict(1), "doubtful: overload");
  EXPECT_EQ(Verdict(2), "failed: above-limit");
  EXPECT_EQ(Unfinished(), (Ids{1, 3}));
}

// An interrupted run says what it was about: everything else was not asked for.
TEST_F(RunSelectionTest, ResumesAnInterruptedRunAlone) {
  for (const std::int32_t test : {410, 420, 610}) AddLimited(test);
  const auto stop = parts_.controller->Finished().Subscribe([&](const Element&) { parts_.stop.Ask(); });
  EXPECT_EQ(Run({1, 2}), End::kStopped);
  EXPECT_EQ(Unfinished(), Ids{2}) << "3 was never asked for";
}

TEST_F(RunSelectionTest, DoesNotKeepStandardsForTheNextRun) {
  AddLimited(410);
  support::SetLimit(*document_, bench_.Host(), 1, "", "200", "house rule");
  Select({"house rule"});
  EXPECT_EQ(Selected(), Texts{"house rule"});
  Select({});
  EXPECT_EQ(Selected(), (Texts{"IEC 62353", "house rule"}));
  Select({"IEC 62353"});
  EXPECT_EQ(Selected(), Texts{"IEC 62353"});
  EXPECT_THROW(Select({"other"}), host::bench::InputError);
}

TEST_F(RunSelectionTest, RejectsMissingElements) {
  EXPECT_THROW(host::bench::SelectedElements(*document_, {"a.orvik", {}, {}, false}),
               host::bench::InputError);
  AddLimited(410);
  AddLimited(420);
  EXPECT_EQ(host::bench::SelectedElements(*document_, {"a.orvik", {}, {}, false}).size(), 2U);
  const auto chosen = host::bench::SelectedElements(*document_, {"a.orvik", {2, 1}, {}, false});
  ASSERT_EQ(chosen.size(), 2U);
  EXPECT_EQ(chosen[0]->ID(), 2);
  EXPECT_THROW(host::bench::SelectedElements(*document_, {"a.orvik", {3}, {}, false}),
               host::bench::InputError);
}

}  // namespace
}  // namespace run
