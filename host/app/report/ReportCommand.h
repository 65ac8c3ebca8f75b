#pragma once

#include <string>

#include "host/app/Command.h"
#include "host/app/report/ReportFile.h"

namespace bench {

/// `report`: writes a document as a report.
class ReportCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  ReportFormat Format() const;

  std::string file_;
  std::string to_;
  std::string format_;
  CLI::App* command_ = nullptr;
};

}  // namespace bench
