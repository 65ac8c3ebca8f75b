#include "host/cli/commands/ArchiveCommandAdd.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "OrvikTypeLib/HostError.h"
#include "host/archive/ArchiveError.h"
#include "host/base/Tr.h"
#include "host/bench/ArchiveEntryOf.h"
#include "host/bench/InputError.h"
#include "host/bench/OpenArchive.h"
#include "host/cli/output/DocumentJson.h"

namespace host::cli {

namespace {

std::string KeyOf(archive::Archive::Added added) {
  switch (added) {
    case archive::Archive::Added::kNew:
      return "added";
    case archive::Archive::Added::kRevision:
      return "revision";
    case archive::Archive::Added::kUnchanged:
      break;
  }
  return "unchanged";
}

}  // namespace

CLI::App* ArchiveCommandAdd::Declare(CLI::App& archive) {
  auto* command = archive.add_subcommand("add", Tr("Add finished documents to the archive"));
  command->add_option("FILE", files_, Tr("The documents"))->required();
  command->add_flag("--incomplete", incomplete_,
                    Tr("Also add documents with missing results; they are marked"));
  command->add_flag("--simulated", simulated_, Tr("Also add documents of simulated runs; they are marked"));
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  return command;
}

bench::ExitStatus ArchiveCommandAdd::Run(const bench::GlobalOptions& options) {
  const auto documents = Read(options);
  try {
    if (!documents.empty()) {
      auto archive = bench::OpenArchiveToAdd(location_, options);
      for (std::size_t i = 0; i < documents.size(); ++i)
        Report(documents[i], taken_[i], archive.Add(documents[i]));
    }
  } catch (const archive::ArchiveError&) {
    PrintJson();  // what was added before is in the archive
    throw;
  }
  PrintJson();
  if (refusals_.empty()) return bench::ExitStatus::kPassed;
  std::string all;
  for (const auto& refusal : refusals_) all += (all.empty() ? "" : "\n") + refusal;
  throw bench::InputError(all);
}

std::vector<archive::ArchivedDocument> ArchiveCommandAdd::Read(const bench::GlobalOptions& options) {
  bench::Workbench workbench(options, bench::Workbench::Settings::kIfReadable);
  std::vector<archive::ArchivedDocument> documents;
  for (const auto& file : files_) {
    try {
      auto document = bench::ArchiveEntryOf(file, workbench);
      if (document.entry.simulated && !simulated_) {
        Refuse(file, Tr("%%1 was not added: it was run on a simulated tester, and nothing was measured "
                        "(--simulated adds it, marked as simulated)",
                        {file}));
        continue;
      }
      const auto reason = bench::UnfinishedReason(document);
      if (!reason.empty() && !incomplete_) {
        Refuse(file,
               Tr("%%1 is not finished and was not added: %%2; run it to its end with \"orvik-bench run "
                  "%%1 --resume\", or add it as it is with --incomplete",
                  {file, reason}));
        continue;
      }
      documents.push_back(std::move(document));
      taken_.push_back(file);
    } catch (const orvik::HostError& error) {
      Refuse(file, error.Description());
    } catch (const bench::InputError& error) {
      Refuse(file, error.what());
    }
  }
  return documents;
}

void ArchiveCommandAdd::Refuse(const std::string& file, const std::string& reason) {
  refusals_.push_back(reason);
  results_.push_back({{"file", file}, {"result", "refused"}, {"reason", reason}});
}

void ArchiveCommandAdd::Report(const archive::ArchivedDocument& document, const std::string& file,
                               const archive::Archive::Receipt& receipt) {
  results_.push_back({{"file", file},
                      {"result", KeyOf(receipt.added)},
                      {"id", receipt.id},
                      {"revision", receipt.revision},
                      {"outcome", judge::OutcomeText(document.entry.outcome)},
                      {"simulated", document.entry.simulated}});
  if (!json_)
    std::cout << bench::ReceiptText(document, file, receipt) << std::endl;  // each as soon as it is kept
}

void ArchiveCommandAdd::PrintJson() const {
  if (json_) std::cout << Indented({{"documents", results_}}) << "\n";
}

}  // namespace host::cli
