#pragma once

#include <string>

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `element-numbers`, hidden: prints number and name of each element of a document, parted by a tab, for
/// completion.
class ElementNumbersCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  std::string file_;
};

}  // namespace host::cli
