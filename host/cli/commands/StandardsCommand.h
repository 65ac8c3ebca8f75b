#pragma once

#include <string>

#include "host/cli/commands/Command.h"
#include "host/standards/LimitSets.h"

namespace bench {

/// `standards`: lists the sets of limits, or shows the figures of one with their sources.
class StandardsCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  ExitStatus List(const LimitSets& sets) const;
  void Show(const LimitSet& set) const;

  std::string set_;
  bool json_ = false;
};

}  // namespace bench
