#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/report/Report.h"

namespace bench {

class Document;
class Host;

/// What a report of the document consists of: what counts of it now. The same document gives the same report.
/// @param language of the report, such as "da"; empty for English
/// @param standards to judge by; empty for all. What they leave out is named on every page.
/// @throws HostError when an element cannot be printed
report::Report ReportOf(const Document& document, Host& host, const std::string& language = {},
                        std::vector<std::string> standards = {});

/// The verdict of the document, as its report has it.
report::Verdict VerdictOf(const Document& document, Host& host);

/// What a report says of one element in full, even of one that reports leave out. None when the document has
/// no such element.
/// @throws HostError when the element cannot be printed
std::optional<report::Section> SectionOf(const Document& document, Host& host, std::int32_t id);

}  // namespace bench
