#pragma once

#include "host/bench/ExitStatus.h"

namespace host::cli {

/// The command line of orvik-bench.
bench::ExitStatus RunProgram(int argumentCount, const char* const* arguments);

}  // namespace host::cli
