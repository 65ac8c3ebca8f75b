#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/bench/ReportFile.h"
#include "host/cli/commands/Command.h"

namespace bench {

class Document;
class Host;

/// `report`: writes a document as a report.
class ReportCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  ReportFormat Format() const;
  report::Report Report(const Document& document, Host& host, const std::string& language) const;

  std::string file_;
  std::string to_;
  std::string format_;
  std::vector<std::string> standards_;
  std::optional<std::int32_t> run_;
  CLI::App* command_ = nullptr;
};

}  // namespace bench
