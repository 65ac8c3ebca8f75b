#pragma once

#include <memory>
#include <vector>

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `archive`: keeps finished documents for asking later. It has commands of its own.
class ArchiveCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  struct Part {
    std::unique_ptr<Command> command;
    CLI::App* declared;
  };

  std::string location_;
  std::vector<Part> parts_;
};

}  // namespace host::cli
