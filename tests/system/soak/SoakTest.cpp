#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <iterator>
#include <map>
#include <optional>

#include "tests/support/Seed.h"
#include "tests/support/TestScale.h"
#include "tests/system/leaks/Allocations.h"
#include "tests/system/soak/SoakBench.h"

namespace soak {
namespace {

using host::judge::Verdict;

#ifdef __SANITIZE_ADDRESS__
constexpr int kRunsOfThisBuild = 5000;
#else
constexpr int kRunsOfThisBuild = 10000;
#endif

/// Memory is checked every this many runs, the first time after as many.
constexpr int kBetweenLooks = kRunsOfThisBuild / 10;
/// Only every this many runs the document is saved and reopened.
constexpr int kSavedEvery = 4;

/// Tables and lists keep the capacity of the largest run so far. One byte leaked in each run is more.
constexpr std::size_t kRoom = 1024;

std::size_t OpenHandles() {
  const std::filesystem::directory_iterator handles("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(handles), end(handles)));
}

/// Memory of the process after the same run.
struct Look {
  leaks::Held held;
  std::size_t handles = 0;
};

Look LookAt(SoakBench& bench) {
  Plan plan;
  plan.kind = Kind::kSequence;
  plan.truth = {{410, 123}, {420, 131}};
  bench.Run(plan, true);
  return {leaks::HeldNow(), OpenHandles()};
}

void ExpectFlat(const Look& now, const Look& first, int runs) {
  EXPECT_EQ(now.held.blocks, first.held.blocks) << "objects are left over after " << runs << " runs";
  EXPECT_LE(now.held.bytes, first.held.bytes + kRoom) << "memory is left over after " << runs << " runs";
  EXPECT_EQ(now.handles, first.handles) << "handles are left over after " << runs << " runs";
}

/// Executes a plan; returns how the run ended.
host::judge::Outcome RunAndCheck(SoakBench& bench, unsigned seed, int run) {
  const auto plan = DrawPlan(seed, run);
  const auto evidence = bench.Run(plan, run % kSavedEvery == 0);
  for (const auto& offence : Offences(plan, evidence))
    ADD_FAILURE() << "run " << run << " (" << TextOf(plan) << ") ended " << VerdictsOf(evidence.elements)
                  << ": " << offence;
  return evidence.outcome;
}

TEST(SoakTest, FaultyRuns_EndCorrectlyWithoutLeaks) {
  const int runs = support::NumberFromEnvironment("ORVIK_SOAK_RUNS", kRunsOfThisBuild, 2 * kBetweenLooks);
  const auto seed = support::Seed();
  support::UseFilesInMemory();
  SoakBench bench;
  std::optional<Look> first;
  std::map<host::judge::Outcome, int> outcomes;
  for (int run = 1; run <= runs && !HasFailure(); ++run) {
    ++outcomes[RunAndCheck(bench, seed, run)];
    if (run % kBetweenLooks != 0) continue;
    const auto look = LookAt(bench);
    if (!first) first = look;
    ExpectFlat(look, *first, run);
  }
  std::cout << runs << " runs: " << outcomes[host::judge::Outcome::kPassed] << " passed, "
            << outcomes[host::judge::Outcome::kFailed] << " failed, "
            << outcomes[host::judge::Outcome::kIncomplete] << " incomplete" << std::endl;
  for (const auto outcome :
       {host::judge::Outcome::kPassed, host::judge::Outcome::kFailed, host::judge::Outcome::kIncomplete})
    EXPECT_GT(outcomes[outcome], runs / 20) << "hardly any run is " << host::judge::OutcomeText(outcome);
}

class OffencesTest : public testing::Test {
 protected:
  /// A disturbed run of one test that reads 123 mOhm.
  OffencesTest() {
    plan_.truth = {{410, 123}, {420, 131}};
    plan_.faultRate = 0.2;
    host::judge::JudgedElement element;
    element.id = 1;
    element.testId = 410;
    element.status = 1;
    element.verdict = Verdict::kPassed;
    element.measurement = host::judge::Measurement{123.0, "mOhm", "", 1};
    evidence_.elements = {element};
    evidence_.outcome = host::judge::Outcome::kPassed;
    evidence_.sent = {"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM"};
    evidence_.received = {ReplyTo(410, 123)};
  }

  host::judge::JudgedElement& Element() { return evidence_.elements.front(); }
  void Become(Verdict verdict, const char* reason) {
    Element().verdict = verdict;
    Element().reasons = {{reason, {}}};
  }

  Plan plan_;
  Evidence evidence_;
};

TEST_F(OffencesTest, AreFoundInEvidence) {
  struct Row {
    const char* name;
    std::size_t offences;
    std::function<void()> change;
  };
  const Row rows[] = {
      {"a good run", 0, [] {}},
      {"a pass without a reading", 1, [&] { evidence_.received.clear(); }},
      {"a pass with the reading of another run", 1, [&] { Element().measurement->value = 122.0; }},
      {"a pass beyond the limit", 1,
       [&] {
         plan_.truth[410] = 301;
         evidence_.received = {ReplyTo(410, 301)};
         Element().measurement->value = 301.0;
       }},
      {"a failure within the limit", 1,
       [&] {
         Become(Verdict::kFailed, "failed-by-plug-in");
         evidence_.outcome = host::judge::Outcome::kFailed;
       }},
      {"not applicable in spite of a limit", 1,
       [&] { Become(Verdict::kNotApplicable, "refused-by-tester"); }},
      {"a reading without a limit", 1, [&] { Become(Verdict::kRecorded, "no-limit"); }},
      {"a doubtful element in a passed run", 1, [&] { Become(Verdict::kDoubtful, "late-reply"); }},
      {"not passed without a reason", 1,
       [&] {
         Element().verdict = Verdict::kNotTested;
         evidence_.outcome = host::judge::Outcome::kIncomplete;
       }},
      {"port and window left open", 2,
       [&] {
         evidence_.portOpen = true;
         evidence_.windows = 1;
       }},
      {"a session left open without a fault", 1,
       [&] {
         plan_.faultRate = 0;
         evidence_.inRemoteMode = true;
       }},
      {"an undisturbed run", 0, [&] { plan_.faultRate = 0; }},
      {"an undisturbed run without its last command", 1,
       [&] {
         plan_.faultRate = 0;
         evidence_.sent.pop_back();
       }},
      {"an undisturbed run that lost its tester", 1,
       [&] {
         plan_.faultRate = 0;
         evidence_.end = host::run::DocumentRunner::End::kTesterLost;
       }},
      {"a saved document that differs", 1,
       [&] {
         evidence_.reopened = evidence_.elements;
         evidence_.reopened.front().verdict = Verdict::kNotTested;
       }},
  };
  const auto plan = plan_;
  const auto evidence = evidence_;
  for (const auto& row : rows) {
    plan_ = plan;
    evidence_ = evidence;
    row.change();
    EXPECT_EQ(Offences(plan_, evidence_).size(), row.offences) << row.name;
  }
}

}  // namespace
}  // namespace soak
