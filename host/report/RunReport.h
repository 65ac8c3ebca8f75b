#pragma once

#include <string>

#include "host/document/RunRecord.h"
#include "host/report/Report.h"

namespace host::document {
class Document;
class Host;
}  // namespace host::document

namespace host::report {

/// A report of one run as it was done: its own equipment, operator and testers; each test with what the
/// tester said, what was recorded and how it was judged then. Nothing in it says what counts now.
/// @param run one of the document's
/// @param language of the report, such as "da"; empty for English
report::Report RunReportOf(const document::Document& document, const document::Host& host,
                           const document::RunRecord& run, const std::string& language = {});

}  // namespace host::report
