#pragma once

#include <cstddef>
#include <string>

#include "host/report/Table.h"

namespace host::report {

/// The table as plain text. Columns are as wide as their content, and narrower where all of them would be
/// wider than `width`; tables with a border have lines of "+", "-" and "|". Its texts are ready to be shown.
std::string TextTable(const report::Table& table, std::size_t width);

}  // namespace host::report
