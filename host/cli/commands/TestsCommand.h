#pragma once

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `tests`: prints the catalogue.
class TestsCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  bool json_ = false;
};

}  // namespace host::cli
