#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/report/Report.h"

namespace host::document {
class Document;
class Host;
}  // namespace host::document

namespace host::report {

struct DocumentView;

/// The report of what counts in the document now. The same document gives the same report.
/// @param language of the report, such as "da"; empty for English
/// @param standards to judge by; empty for all. What they leave out is named on every page.
/// @throws HostError when an element cannot be printed
report::Report ReportOf(const document::Document& document, document::Host& host,
                        const std::string& language = {}, std::vector<std::string> standards = {});

/// The sections of these elements, in this order, by what has been judged already; also of elements that
/// reports leave out. Identifiers that the document does not have are skipped.
/// @throws HostError when an element cannot be printed
std::vector<report::Section> SectionsOf(const document::Document& document, document::Host& host,
                                        DocumentView view, const std::vector<std::int32_t>& ids);
/// A row for each run of the document, as its report has it.
report::Table RunsOf(const document::Document& document, const DocumentView& view);

}  // namespace host::report
