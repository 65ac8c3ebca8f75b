#pragma once

#include <string>
#include <vector>

#include "host/cli/commands/Command.h"
#include "host/document/Document.h"

namespace bench {

/// `new`: makes a document.
class NewCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  void AddTests(Workbench& workbench, Document& document) const;

  std::string file_;
  std::string from_;
  std::vector<std::int32_t> tests_;
  Document::Equipment equipment_;
};

}  // namespace bench
