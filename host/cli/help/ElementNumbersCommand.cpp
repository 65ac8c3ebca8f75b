#include "host/cli/help/ElementNumbersCommand.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/cli/help/Examples.h"
#include "host/document/Document.h"
#include "host/document/ElementText.h"
#include "host/document/ElementWalk.h"
#include "host/elements/ElementFactory.h"
#include "host/report/DocumentView.h"

namespace host::cli {

CLI::App* ElementNumbersCommand::Declare(CLI::App& program) {
  auto* command =
      program.add_subcommand("element-numbers", Tr("Print the elements of a document for completion"));
  command->group("");
  command->add_option("FILE", file_, Tr("The document"))->required();
  command->footer(Examples({"orvik-bench element-numbers pump-7.orvik"}));
  return command;
}

bench::ExitStatus ElementNumbersCommand::Run(const bench::GlobalOptions& options) {
  bench::Workbench workbench(options, bench::Workbench::Settings::kIfReadable);
  const auto document = document::Document::Open(workbench.Host(), file_, document::DocumentFile::Use::kRead);
  for (const auto& top : report::TopElements(*document)) {
    document::WalkElements(top, [&](const std::shared_ptr<orvik::ITestElement>& element) {
      std::cout << element->ID() << "\t"
                << host::VisibleText(document::ElementName(*element, *workbench.Host()->Elements())) << "\n";
    });
  }
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli
