#pragma once

#include <string>

#include "host/cli/commands/Command.h"
#include "host/document/Document.h"

namespace bench {

/// `edit`: shows and changes what a document says of the equipment under test.
class EditCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  bool Given(const char* option) const;
  void Change(Document& document) const;

  std::string file_;
  Document::Equipment equipment_;
  std::string comment_;
  CLI::App* command_ = nullptr;
};

}  // namespace bench
