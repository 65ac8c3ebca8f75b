#pragma once

#include <string>
#include <vector>

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `remove`: removes elements of a document.
class RemoveCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  std::string file_;
  std::vector<std::int32_t> elements_;
};

}  // namespace host::cli
