#pragma once

#include <memory>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/bench/RunReporter.h"
#include "host/cli/commands/Command.h"
#include "host/cli/options/RunOptions.h"
#include "host/run/DocumentRunner.h"

namespace bench {

class Document;

/// `run`: runs the elements of a document.
class RunCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  void Check() const;
  std::unique_ptr<RunReporter> Reporter(Workbench& workbench) const;
  ExitStatus Perform(Workbench& workbench, Document& document, RunReporter& reporter);
  void RemarkOnEnd(DocumentRunner::End end, const std::string& reason, RunReporter& reporter) const;
  static void KeepResults(const Document& document, RunReporter& reporter);

  RunOptions options_;
};

}  // namespace bench
