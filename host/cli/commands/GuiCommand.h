#pragma once

#include "host/bench/DesktopModule.h"
#include "host/cli/commands/Command.h"

namespace host::cli {

/// `gui`: opens the window of the desktop program.
class GuiCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  bench::DesktopOptions options_;
};

}  // namespace host::cli
