#pragma once

#include "host/bench/ExitStatus.h"
#include "host/bench/Workbench.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace host::cli {

/// One command of the program: it declares its options and runs.
class Command {
 public:
  Command() = default;
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;
  virtual ~Command() = default;

  /// Adds the command with its options.
  virtual CLI::App* Declare(CLI::App& program) = 0;
  /// Runs it; errors are thrown.
  virtual bench::ExitStatus Run(const bench::GlobalOptions& options) = 0;
};

}  // namespace host::cli
