#include <gtest/gtest.h>

#include <iostream>

#include "tests/support/Seed.h"
#include "tests/support/TestScale.h"
#include "tests/system/history/Generator.h"
#include "tests/system/history/Player.h"
#include "tests/system/history/Shrink.h"

namespace history {
namespace {

/// ORVIK_HISTORIES overrides it; 0 is unlimited.
constexpr int kHistories = 3000;
/// Histories are divided into tests, which can run at the same time.
constexpr int kParts = 4;
/// Distance between the first histories of two parts, if unlimited.
constexpr int kPartsApart = 1'000'000;
/// One of this many uses the command line.
constexpr int kByCommandEvery = 16;

class Histories {
 public:
  explicit Histories(unsigned seed) : seed_(seed) {}

  /// Plays the history with that number.
  /// @return the fault, with the shrunk history as commands; none if all is well
  std::optional<std::string> Play(int number) {
    const bool byCommand = number % kByCommandEvery == 0;
    // Mixed, or one history would have the random numbers of the next, shifted by one.
    Generator generator(Dice(seed_).Next() ^ Dice(static_cast<std::uint64_t>(number)).Next());
    std::vector<Operation> history;
    player_.Begin(byCommand);
    for (int step = 0; step < generator.Length(); ++step) {
      history.push_back(generator.Next(player_.Now()));
      if (player_.Step(history.back()))
        return Report(
            Shrunk(history, [&](const std::vector<Operation>& shorter) { return Again(shorter, byCommand); }),
            byCommand);
    }
    return {};
  }

  const Player::Counts& Seen() const { return player_.Seen(); }

 private:
  std::optional<std::string> Again(const std::vector<Operation>& history, bool byCommand) {
    player_.Begin(byCommand);
    for (const auto& operation : history)
      if (auto offence = player_.Step(operation)) return offence;
    return {};
  }

  std::string Report(const std::vector<Operation>& history, bool byCommand) {
    std::string text = "\n";
    for (const auto& operation : history) text += "  " + TextOf(operation) + "\n";
    return text + "then " + Again(history, byCommand).value_or("nothing, the second time");
  }

  const unsigned seed_;
  Bench bench_;
  Player player_{bench_};
};

class HistoryTest : public testing::TestWithParam<int> {};

TEST_P(HistoryTest, ReportsWhatWasMeasured) {
  const int wanted = support::NumberFromEnvironment("ORVIK_HISTORIES", kHistories, 0);
  const int first = wanted == 0 ? GetParam() * kPartsApart : wanted * GetParam() / kParts;
  const int end = wanted * (GetParam() + 1) / kParts;
  const auto seed = support::Seed();
  support::UseFilesInMemory();
  Histories histories(seed);
  int played = 0;
  for (int number = first; (wanted == 0 || number < end) && !HasFailure(); ++number, ++played)
    if (const auto wrong = histories.Play(number)) ADD_FAILURE() << "history " << number << ":" << *wrong;

  const auto& seen = histories.Seen();
  std::cout << played << " histories, " << seen.operations << " operations, " << seen.elements
            << " verdicts, of which " << seen.exact << " were certain:";
  for (const auto& [verdict, count] : seen.verdicts) std::cout << " " << count << " " << verdict;
  std::cout << "; documents:";
  for (const auto& [outcome, count] : seen.outcomes) std::cout << " " << count << " " << outcome;
  std::cout << std::endl;

  // The histories must contain every verdict often enough.
  if (played < 500) return;
  EXPECT_GT(seen.exact * 10, seen.elements * 8);
  for (const auto* verdict :
       {"failed", "doubtful", "aborted", "not tested", "not judged", "recorded", "not applicable", "passed"})
    EXPECT_GT(seen.verdicts.at(verdict) * 500, seen.elements) << verdict;
  for (const auto* outcome : {"passed", "failed", "incomplete"})
    EXPECT_GT(seen.outcomes.at(outcome) * 50, seen.operations) << outcome;
}

INSTANTIATE_TEST_SUITE_P(Parts, HistoryTest, testing::Range(0, kParts));

}  // namespace
}  // namespace history
