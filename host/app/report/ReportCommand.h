#pragma once

#include <string>

#include "host/app/Command.h"

namespace bench {

/// `report`: writes a document as a report.
class ReportCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  std::string file_;
  std::string to_;
};

}  // namespace bench
