#pragma once

#include <string>

#include "host/report/Report.h"

namespace bench {

class Document;
class Host;

/// What a report of the document consists of. The same document gives the same report.
/// @param language of the report, such as "da"; empty for English
/// @throws HostError when an element cannot be printed
report::Report ReportOf(const Document& document, Host& host, const std::string& language = {});

}  // namespace bench
