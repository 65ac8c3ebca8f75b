#pragma once

#include <string>

#include "host/cli/commands/Command.h"
#include "host/standards/LimitSets.h"

namespace host::cli {

/// `standards`: lists the sets of limits, or shows the figures of one with their sources.
class StandardsCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  bench::ExitStatus List(const standards::LimitSets& sets) const;
  void Show(const standards::LimitSet& set) const;

  std::string set_;
  bool json_ = false;
};

}  // namespace host::cli
