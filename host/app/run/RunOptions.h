#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/app/TesterOptions.h"

namespace bench {

/// What `run` was asked for.
struct RunOptions {
  std::string file;
  TesterOptions tester;
  std::vector<std::int32_t> elements;  ///< none: all at the top
  std::vector<std::string> standards;  ///< none: all that the document names
  bool resume = false;
  std::string operatorKind = "auto";
  std::string by;  ///< the operator's name; empty: that of the account
  bool json = false;
  bool events = false;
  std::string wireLog;  ///< empty: FILE.wire.log
};

}  // namespace bench
