#pragma once

#include "host/cli/commands/Command.h"

namespace bench {

/// `tests`: prints the catalogue.
class TestsCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  bool json_ = false;
};

}  // namespace bench
