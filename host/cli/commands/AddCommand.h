#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/cli/commands/Command.h"

namespace bench {

class Document;
struct ElementPlace;

/// `add`: adds tests of the catalogue to a document.
class AddCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  ElementPlace PlaceIn(const Document& document) const;

  std::string file_;
  std::vector<std::int32_t> tests_;
  std::optional<std::int32_t> to_, before_, after_;
};

}  // namespace bench
