#pragma once

#include <memory>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/bench/RunReporter.h"
#include "host/cli/commands/Command.h"
#include "host/cli/options/RunOptions.h"
#include "host/run/DocumentRunner.h"

namespace host::document {
class Document;
}

namespace host::cli {

/// `run`: runs the elements of a document.
class RunCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  void Check() const;
  std::unique_ptr<bench::RunReporter> Reporter(bench::Workbench& workbench) const;
  bench::ExitStatus Perform(bench::Workbench& workbench, document::Document& document,
                            bench::RunReporter& reporter);
  void RemarkOnEnd(run::DocumentRunner::End end, const std::string& reason,
                   bench::RunReporter& reporter) const;
  static void KeepResults(const document::Document& document, bench::RunReporter& reporter);

  RunOptions options_;
};

}  // namespace host::cli
