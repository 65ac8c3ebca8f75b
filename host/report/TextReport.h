#pragma once

#include <string>

#include "host/report/ReportObject.h"

namespace bench {

/// The report as plain text, UTF-8, one table after the other with an empty line between them. Columns are as
/// wide as their content; tables with a border have lines of "+", "-" and "|". Control characters that a
/// terminal would obey are shown as their symbols.
std::string TextReport(const ReportObject& report);

}  // namespace bench
