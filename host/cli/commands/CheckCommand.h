#pragma once

#include <string>
#include <vector>

#include "host/cli/commands/Command.h"
#include "host/document/Findings.h"

namespace host::cli {

/// `check`: reports all problems of a document.
class CheckCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  void Print(const std::vector<document::Finding>& findings) const;

  std::string file_;
  bool json_ = false;
};

}  // namespace host::cli
