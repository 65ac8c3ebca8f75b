#include "host/cli/commands/ChangeDocument.h"

#include <iostream>

#include "host/bench/Consequences.h"

namespace host::cli {

bench::ExitStatus ChangeDocument(const bench::GlobalOptions& options, const std::string& file,
                                 const DocumentChange& change) {
  bench::Workbench workbench(options);
  const auto document = document::Document::Open(workbench.Host(), file);
  const bench::Consequences consequences(*document, *workbench.Host());
  const auto text = change(workbench, *document);
  document->Save();
  std::cout << text << consequences.Text();
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli
