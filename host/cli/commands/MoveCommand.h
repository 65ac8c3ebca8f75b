#pragma once

#include <optional>
#include <string>

#include "host/cli/commands/Command.h"

namespace host::document {
class Document;
struct ElementPlace;
}  // namespace host::document

namespace host::cli {

/// `move`: takes an element of a document to another place, which is the order of testing.
class MoveCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  document::ElementPlace PlaceIn(const document::Document& document) const;

  std::string file_;
  std::int32_t element_ = 0;
  std::optional<std::int32_t> before_, after_;
  bool toEnd_ = false;
};

}  // namespace host::cli
