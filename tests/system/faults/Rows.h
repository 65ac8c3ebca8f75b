#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/system/faults/FaultRun.h"

namespace faults {

/// What is to become of a run: as in `Observed`.
struct Ending {
  const char* sent;
  const char* verdicts;
  int exitStatus;
};

/// What is to become of a run whose reply to `command` has a fault.
struct Row {
  const char* command;
  // The fault is in the first attempt. In the second one it ends alike, with the command sent once more.
  const char* sent;
  const char* verdicts;
  int exitStatus;
  /// The fault is in the third attempt, after two that got no reply. None when it ends as in the first, with
  /// the command sent twice more.
  std::optional<Ending> third = {};
};

/// All that is known of one fault.
struct FaultRows {
  std::string fault;      ///< as in a fault script
  std::vector<Row> test;  ///< a single test, whichever it is
  std::vector<Row> sequence;
  std::vector<Row> insulation = {};  ///< instead of those in `test`, where it ends otherwise
};

/// In the test's name and messages.
inline void PrintTo(const FaultRows& rows, std::ostream* out) { *out << rows.fault; }

const std::vector<FaultRows>& LostReplies();
const std::vector<FaultRows>& WrongReplies();
const std::vector<FaultRows>& BrokenSessions();

}  // namespace faults
