#pragma once

#include <string>

#include "host/bench/RunSelection.h"
#include "host/cli/options/TesterOptions.h"

namespace host::cli {

/// What `run` was asked for.
struct RunOptions : bench::RunSelection {
  TesterOptions tester;
  std::string operatorKind = "auto";
  std::string by;  ///< the operator's name; empty: that of the account
  bool json = false;
  bool events = false;
  std::string wireLog;  ///< empty: FILE.wire.log
};

}  // namespace host::cli
