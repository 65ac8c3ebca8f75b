#pragma once

#include <string>
#include <vector>

#include "host/cli/commands/Command.h"

namespace bench {

/// `remove`: removes elements of a document.
class RemoveCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  std::string file_;
  std::vector<std::int32_t> elements_;
};

}  // namespace bench
