#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/system/faults/FaultRun.h"

namespace faults {

/// How a run is to end, as in `Observed`.
struct Ending {
  const char* sent;
  const char* verdicts;
  int exitStatus;
};

/// How a run is to end when the reply to `command` is faulty.
struct Row {
  const char* command;
  // With the fault in the first attempt. In the second it ends alike, with the command sent once more.
  const char* sent;
  const char* verdicts;
  int exitStatus;
  /// With the fault in the third attempt, after two without a reply. None when it ends as in the first, with
  /// the command sent twice more.
  std::optional<Ending> third = {};
};

/// The expected ends of runs with one of these faults.
struct FaultRows {
  std::vector<std::string> faults;  ///< as in a fault script; all end alike
  std::vector<Row> test;            ///< a single test, whichever it is
  std::vector<Row> sequence;
  std::vector<Row> insulation = {};  ///< instead of those in `test`, where it ends otherwise
};

const std::vector<FaultRows>& LostReplies();
const std::vector<FaultRows>& WrongReplies();
const std::vector<FaultRows>& BrokenSessions();

}  // namespace faults
