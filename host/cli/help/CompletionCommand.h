#pragma once

#include <string>

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `completion`: prints a script with which a shell completes the command line.
class CompletionCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  const CLI::App* program_ = nullptr;
  std::string shell_;
};

}  // namespace host::cli
