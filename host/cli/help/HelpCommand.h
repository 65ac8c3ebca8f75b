#pragma once

#include <string>
#include <vector>

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `help`: prints the help of the program or of a command, as `--help` does.
class HelpCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  const CLI::App* program_ = nullptr;
  std::vector<std::string> words_;
};

}  // namespace host::cli
