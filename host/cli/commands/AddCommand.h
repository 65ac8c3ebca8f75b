#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/cli/commands/Command.h"

namespace host::document {
class Document;
struct ElementPlace;
}  // namespace host::document

namespace host::cli {

/// `add`: adds tests of the catalogue to a document.
class AddCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  document::ElementPlace PlaceIn(const document::Document& document) const;

  std::string file_;
  std::vector<std::int32_t> tests_;
  std::optional<std::int32_t> to_, before_, after_;
};

}  // namespace host::cli
