#pragma once

#include <string>
#include <vector>

#include "tests/system/faults/FaultRun.h"

namespace faults {

/// What a run left behind.
struct RunEvidence {
  int exitStatus = -1;
  std::string json;                  ///< its standard output
  std::string said;                  ///< its standard error
  std::vector<std::string> wireLog;  ///< the lines of orvik-bench's log
  std::vector<std::string> trace;    ///< the lines of keld-sim's trace
};

std::vector<std::string> ReadLines(const std::string& path);

/// Sums a run up, and finds what must not be. `fault` is the one that the run was to meet;
/// empty for any or none.
Observed Judge(const RunEvidence& evidence, const std::string& fault);

}  // namespace faults
