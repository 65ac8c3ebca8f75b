#pragma once

#include <string>

#include "host/cli/commands/Command.h"
#include "host/document/Document.h"

namespace host::cli {

/// `edit`: shows and changes what a document says of the equipment under test.
class EditCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  bool Given(const char* option) const;
  void Change(document::Document& document) const;

  std::string file_;
  document::Document::Equipment equipment_;
  std::string comment_;
  CLI::App* command_ = nullptr;
};

}  // namespace host::cli
