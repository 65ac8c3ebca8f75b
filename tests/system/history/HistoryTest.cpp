#include <gtest/gtest.h>
#include <unistd.h>

#include <charconv>
#include <cstdlib>
#include <iostream>

#include "tests/support/Seed.h"
#include "tests/system/history/Generator.h"
#include "tests/system/history/Player.h"
#include "tests/system/history/Shrink.h"

namespace history {
namespace {

constexpr int kHistories = 3000;
/// They are played in so many parts, each a test, which can run at the same time.
constexpr int kParts = 4;
/// Where a part of histories without end begins.
constexpr int kPartsApart = 1'000'000;
/// One of so many goes through the command line.
constexpr int kByCommandEvery = 16;

/// How many are wanted; 0 for as many as there is time for.
int HistoriesWanted() {
  const char* given = std::getenv("ORVIK_HISTORIES");
  if (!given) return kHistories;
  const std::string text = given;
  int histories = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), histories);
  if (error != std::errc{} || end != text.data() + text.size() || histories < 0)
    throw std::runtime_error("ORVIK_HISTORIES is \"" + text +
                             "\"; give it a whole number, 0 for no end, or leave it out");
  return histories;
}

/// Documents are made in memory, where flushing takes no time.
void UseFilesInMemory() {
  constexpr char kFolder[] = "/dev/shm";
  if (access(kFolder, W_OK) == 0) setenv("TMPDIR", kFolder, 1);
}

class Histories {
 public:
  explicit Histories(unsigned seed) : seed_(seed) {}

  /// Plays the history of that number; what goes wrong with it, shrunk and as commands, or none.
  std::optional<std::string> Play(int number) {
    const bool byCommand = number % kByCommandEvery == 0;
    // Mixed, or the dice of one history would fall as those of the next, one throw later.
    Generator generator(Dice(seed_).Next() ^ Dice(static_cast<std::uint64_t>(number)).Next());
    std::vector<Operation> history;
    player_.Begin(byCommand);
    for (int step = 0; step < generator.Length(); ++step) {
      history.push_back(generator.Next(player_.Now()));
      if (player_.Step(history.back()))
        return Told(
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

  std::string Told(const std::vector<Operation>& history, bool byCommand) {
    std::string text = "\n";
    for (const auto& operation : history) text += "  " + TextOf(operation) + "\n";
    return text + "then " + Again(history, byCommand).value_or("nothing, the second time");
  }

  const unsigned seed_;
  Bench bench_;
  Player player_{bench_};
};

class HistoryTest : public testing::TestWithParam<int> {};

TEST_P(HistoryTest, SaysOfEveryHistoryWhatWasMeasured) {
  const int wanted = HistoriesWanted();
  const int first = wanted == 0 ? GetParam() * kPartsApart : wanted * GetParam() / kParts;
  const int end = wanted * (GetParam() + 1) / kParts;
  const auto seed = support::Seed();
  UseFilesInMemory();
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

  // Otherwise it would show little.
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
