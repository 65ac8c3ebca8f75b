#pragma once

#include <string>
#include <vector>

#include "host/cli/commands/Command.h"
#include "host/document/Findings.h"

namespace bench {

/// `check`: reports all problems of a document.
class CheckCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  void Print(const std::vector<Finding>& findings) const;

  std::string file_;
  bool json_ = false;
};

}  // namespace bench
