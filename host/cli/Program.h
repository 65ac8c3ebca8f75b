#pragma once

#include "host/bench/ExitStatus.h"

namespace bench {

/// The command line of orvik-bench.
ExitStatus RunProgram(int argumentCount, const char* const* arguments);

}  // namespace bench
