#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/system/history/Bench.h"
#include "tests/system/history/Operation.h"
#include "tests/system/history/World.h"

namespace history {

/// Plays histories on the bench, and compares the program with the oracle after every operation.
class Player {
 public:
  /// Statistics that show whether a test is meaningful.
  struct Counts {
    long operations = 0, elements = 0, exact = 0;
    std::map<std::string, long> verdicts, outcomes;
  };

  explicit Player(Bench& bench) : bench_(bench) {}

  /// Starts a history.
  /// @param byCommand whether edits go through the command line
  void Begin(bool byCommand);
  const history::World& Now() const { return world_; }

  /// Executes the next operation; omits one that is impossible in this world.
  /// @return a violation; none if all is well
  std::optional<std::string> Step(const Operation& operation);

  const Counts& Seen() const { return counts_; }

 private:
  std::optional<std::string> Do(const Operation& operation);
  std::optional<std::string> TamperWith(const Operation& operation);
  std::optional<std::string> Check(const std::string& file);
  std::optional<std::string> CheckRuns(const std::string& file);

  Bench& bench_;
  history::World world_;
  bool byCommand_ = false;
  int step_ = 0;
  std::map<std::string, std::vector<std::string>> runs_;  ///< of each document, as its file had them
  Counts counts_;
};

}  // namespace history
