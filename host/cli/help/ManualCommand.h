#pragma once

#include <string>

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `manual`: writes the pages of the manual into a folder. For the build; not shown in the help.
class ManualCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  const CLI::App* program_ = nullptr;
  std::string folder_;
};

}  // namespace host::cli
