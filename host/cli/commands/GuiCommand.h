#pragma once

#include "host/bench/DesktopModule.h"
#include "host/cli/commands/Command.h"

namespace bench {

/// `gui`: opens the window of the desktop program.
class GuiCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  DesktopOptions options_;
};

}  // namespace bench
