#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/bench/ReportFile.h"
#include "host/cli/commands/Command.h"

namespace host::document {
class Document;
class Host;
}  // namespace host::document

namespace host::cli {

/// `report`: writes a document as a report.
class ReportCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  bench::ReportFormat Format() const;
  report::Report Report(const document::Document& document, document::Host& host,
                        const std::string& language) const;

  std::string file_;
  std::string to_;
  std::string format_;
  std::vector<std::string> standards_;
  std::optional<std::int32_t> run_;
  CLI::App* command_ = nullptr;
};

}  // namespace host::cli
