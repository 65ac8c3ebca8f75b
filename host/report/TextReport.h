#pragma once

#include <string>

#include "host/report/Report.h"

namespace host::report {

/// The report as plain text, UTF-8, in lines of about 100 columns.
std::string TextReport(const report::Report& report);

/// The value between its bounds in letters: "=" is allowed, "." is not, "|" is a bound, "*" the value; "<" or
/// ">" is a value beyond the end of the line.
std::string TextBar(const report::Bar& bar);

}  // namespace host::report
