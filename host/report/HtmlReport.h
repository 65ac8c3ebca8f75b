#pragma once

#include <string>

#include "host/report/Report.h"

namespace host::report {

/// The report as one self-contained file: HTML 5 that is well-formed XML too, its style and pictures within,
/// no scripts, nothing fetched. Prints with the essentials at the top of every page; reads well on a narrow
/// screen.
std::string HtmlReport(const report::Report& report);

}  // namespace host::report
