#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/report/Report.h"

namespace bench {

class Document;
class Host;
struct DocumentView;

/// What a report of the document consists of: what counts of it now. The same document gives the same report.
/// @param language of the report, such as "da"; empty for English
/// @param standards to judge by; empty for all. What they leave out is named on every page.
/// @throws HostError when an element cannot be printed
report::Report ReportOf(const Document& document, Host& host, const std::string& language = {},
                        std::vector<std::string> standards = {});

/// What a report says of these elements in full, in this order, by what has been judged already; also of
/// those that reports leave out. Without any that the document does not have.
/// @throws HostError when an element cannot be printed
std::vector<report::Section> SectionsOf(const Document& document, Host& host, DocumentView view,
                                        const std::vector<std::int32_t>& ids);
/// A row for each run of the document, as its report has it.
report::Table RunsOf(const Document& document, const DocumentView& view);

}  // namespace bench
