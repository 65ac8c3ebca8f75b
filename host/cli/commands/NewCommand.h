#pragma once

#include <string>
#include <vector>

#include "host/cli/commands/Command.h"
#include "host/document/Document.h"

namespace host::cli {

/// `new`: makes a document.
class NewCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  void AddTests(bench::Workbench& workbench, document::Document& document) const;

  std::string file_;
  std::string from_;
  std::vector<std::int32_t> tests_;
  document::Document::Equipment equipment_;
};

}  // namespace host::cli
