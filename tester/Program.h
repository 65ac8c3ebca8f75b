#pragma once

#include "tester/Options.h"

namespace sim {

/// Exit statuses of the program.
inline constexpr int kExitDone = 0;
inline constexpr int kExitBadInput = 3;
inline constexpr int kExitSystemFailure = 4;

/// Runs the tester that `options` ask for until it is stopped; prints one line on standard output when a
/// client may open the port. `parent` is the id of the process that started this one. Throws InputError and
/// SystemFailure.
void RunTester(const Options& options, int parent);

}  // namespace sim
