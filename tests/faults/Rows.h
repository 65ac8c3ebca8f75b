#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tests/faults/FaultRun.h"

namespace faults {

/// What is to become of a run whose reply to `command` has a fault, written as `Observed::cell` is.
struct Row {
  char command;
  const char* first;  ///< the fault is in the first attempt
  const char* third;  ///< ... in the third one, after two that got no reply
  // In the second attempt it ends as in the first, with the command sent once more.
};

/// All that is known of one fault.
struct FaultRows {
  std::string fault;  ///< as in a fault script
  std::vector<Row> test;
  std::vector<Row> sequence;
};

/// In the test's name and messages.
inline void PrintTo(const FaultRows& rows, std::ostream* out) { *out << rows.fault; }

const std::vector<FaultRows>& LostReplies();
const std::vector<FaultRows>& WrongReplies();
const std::vector<FaultRows>& BrokenSessions();

}  // namespace faults
