#pragma once

#include <optional>
#include <string>

#include "host/cli/commands/Command.h"

namespace bench {

class Document;
struct ElementPlace;

/// `move`: takes an element of a document to another place, which is the order of testing.
class MoveCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  ElementPlace PlaceIn(const Document& document) const;

  std::string file_;
  std::int32_t element_ = 0;
  std::optional<std::int32_t> before_, after_;
  bool toEnd_ = false;
};

}  // namespace bench
