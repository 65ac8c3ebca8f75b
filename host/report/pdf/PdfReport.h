#pragma once

#include <string>

#include "host/report/Report.h"

namespace host::report::pdf {

/// The report as a PDF file of A4 pages, each with the essentials, its number and the report's
/// marks, the first one across the page. The same report gives the same bytes with the same fonts.
/// @throws std::runtime_error when no fonts are installed, or the pages cannot be drawn
std::string PdfReport(const report::Report& report);

}  // namespace host::report::pdf
