#include "host/cli/commands/ShowCommand.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <nlohmann/json.hpp>

#include "host/base/Tr.h"
#include "host/bench/RunSelection.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/NumberOption.h"
#include "host/cli/output/Colour.h"
#include "host/cli/output/DocumentJson.h"
#include "host/cli/output/DocumentLines.h"
#include "host/cli/output/RunJson.h"
#include "host/cli/output/RunText.h"
#include "host/document/Document.h"

namespace host::cli {

CLI::App* ShowCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("show", Tr("Print a document and its results"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  auto* runs = command->add_flag("--runs", runs_, Tr("List every run of the document instead"));
  auto* run = WholeNumbers(command->add_option("--run", run_, Tr("Print this run as it was recorded")));
  run->type_name("N")->excludes(runs);
  command
      ->add_option(
          "--standard", standards_,
          Tr("Judge by this standard only; may be repeated. The output names the standards left out"))
      ->allow_extra_args(false)
      ->type_name("NAME")
      ->excludes(runs)
      ->excludes(run);
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  command->footer(Examples({"orvik-bench show pump-7.orvik", "orvik-bench show pump-7.orvik --json",
                            "orvik-bench show pump-7.orvik --runs", "orvik-bench show pump-7.orvik --run 1",
                            "orvik-bench show pump-7.orvik --standard \"IEC 62353\""}));
  return command;
}

void ShowCommand::Print(const document::Document& document, const document::Host& host) const {
  const auto& runs = document.Runs().All();
  if (runs_) {
    std::cout << (json_ ? Indented(JsonOf(runs, document.Path().string())) + "\n" : RunsText(runs));
  } else if (run_) {
    const auto& run = FoundRun(runs, *run_);
    const report::RunOutcomes outcomes(report::ViewOf(document, host).judged);
    std::cout << (json_ ? Indented(JsonOf(run)) + "\n" : RunText(run, runs.size(), outcomes));
  } else {
    const auto view = report::ViewOf(document, host, standards_);
    bench::RequireStandards(view.judged, standards_, file_);
    std::cout << (json_ ? Indented(JsonOf(view)) + "\n" : TextOf(view, ColoursWanted(STDOUT_FILENO)));
  }
}

bench::ExitStatus ShowCommand::Run(const bench::GlobalOptions& options) {
  bench::Workbench workbench(options, bench::Workbench::Settings::kIfReadable);
  Print(*document::Document::Open(workbench.Host(), file_, document::DocumentFile::Use::kRead),
        *workbench.Host());
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli
