#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/support/TemporaryFolder.h"
#include "tests/system/faults/FaultRun.h"

namespace faults {
namespace {

// Many faults in each run, as they come: whatever they do together, nothing passes that was not measured, and
// every run ends.
TEST(RandomFaults, NeverPassUnmeasured) {
  constexpr std::size_t kRuns = 48;
  constexpr std::uint64_t kFirstSeed = 1;
  const FaultRig rig(10, kRuns);
  const auto observed = rig.RunAll(kRuns, [&](std::size_t at) {
    const auto seed = std::to_string(kFirstSeed + at);
    return rig.Run(at % 2 == 0 ? Kind::kTest : Kind::kSequence,
                   {"--fault-seed", seed, "--fault-rate", "0.25"});
  });
  int spoiled = 0;
  for (std::size_t at = 0; at < kRuns; ++at) {
    for (const auto& offence : observed[at].offences)
      ADD_FAILURE() << "--fault-seed " << kFirstSeed + at << " --fault-rate 0.25 (" << observed[at].Text()
                    << "): " << offence;
    if (observed[at].exitStatus != 0) ++spoiled;
  }
  EXPECT_GT(spoiled, 10) << "the faults do next to nothing";
}

class ReplayOfARun : public testing::Test {
 protected:
  /// Enough time for each reply on a slow machine: both runs have to end alike.
  static constexpr int kTimeScale = 5;
};

// What went wrong in one run goes wrong again when its log is replayed.
TEST_F(ReplayOfARun, EndsAsTheRunDid) {
  const std::vector<std::string> faults{"drop",   "delay 3750", "garble",  "double",    "wrong-mnemonic",
                                        "forget", "error 1003", "hang-up", "noise 1750"};
  const FaultRig rig(kTimeScale, faults.size());
  const support::TemporaryFolder logs;
  const auto first = rig.RunAll(faults.size(), [&](std::size_t at) {
    return rig.Run({Kind::kTest, "GRES 1", 1, faults[at]});
  });
  const auto again = rig.RunAll(faults.size(), [&](std::size_t at) {
    const auto log = logs.Path() / std::to_string(at);
    std::ofstream file(log);
    for (const auto& line : first[at].wireLog) file << line << "\n";
    file.close();
    // The times in the log are those of a run that was fast already.
    return rig.Run(Kind::kTest, {"--replay", log.string(), "--time-scale", "1"});
  });
  for (std::size_t at = 0; at < faults.size(); ++at) {
    EXPECT_TRUE(first[at].met) << faults[at];
    EXPECT_EQ(again[at].Text(), first[at].Text()) << faults[at];
    EXPECT_TRUE(again[at].offences.empty()) << faults[at] << ": " << again[at].offences.front();
  }
}

}  // namespace
}  // namespace faults
