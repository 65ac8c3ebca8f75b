#pragma once

#include <functional>
#include <string>

#include "host/bench/ExitStatus.h"
#include "host/bench/Workbench.h"
#include "host/document/Document.h"

namespace host::cli {

/// Changes a document and returns what to print of the change; an exception leaves the file as it is.
using DocumentChange = std::function<std::string(bench::Workbench& workbench, document::Document& document)>;

/// Opens the document of that file, changes and saves it, and prints what `change` returned and what the
/// change does to results that counted.
bench::ExitStatus ChangeDocument(const bench::GlobalOptions& options, const std::string& file,
                                 const DocumentChange& change);

}  // namespace host::cli
