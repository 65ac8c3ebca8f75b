#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/cli/commands/Command.h"

namespace bench {

class Document;
class Host;

/// `show`: prints a document.
class ShowCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  void Print(const Document& document, const Host& host) const;

  std::string file_;
  std::vector<std::string> standards_;
  std::optional<std::int32_t> run_;
  bool runs_ = false;
  bool json_ = false;
};

}  // namespace bench
