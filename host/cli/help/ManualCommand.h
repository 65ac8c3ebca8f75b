#pragma once

#include <string>

#include "host/cli/commands/Command.h"

namespace bench {

/// `manual`: writes the pages of the manual into a folder. For the build; not shown in the help.
class ManualCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  const CLI::App* program_ = nullptr;
  std::string folder_;
};

}  // namespace bench
