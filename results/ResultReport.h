#pragma once

#include <string>

namespace orvik {
class IReport;
}

/// The result table's parts that do not depend on the result.
namespace keld::results::ResultReport {

/// The column format: a margin of 560 twips, the name in 2,240, four equal columns that share the rest of the
/// page, and a margin. The four come out negative on a page that is narrower than the fixed columns.
std::string Format(const orvik::IReport& Report);

/// The header row: "Result:", "Value" and "Unit" in bold italics, translated; the cell under the margin is
/// empty.
std::string Header(const orvik::IReport& Report);

}  // namespace keld::results::ResultReport
