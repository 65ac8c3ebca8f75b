#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/cli/commands/Command.h"

namespace host::document {
class Document;
class Host;
}  // namespace host::document

namespace host::cli {

/// `show`: prints a document.
class ShowCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  void Print(const document::Document& document, const document::Host& host) const;

  std::string file_;
  std::vector<std::string> standards_;
  std::optional<std::int32_t> run_;
  bool runs_ = false;
  bool json_ = false;
};

}  // namespace host::cli
