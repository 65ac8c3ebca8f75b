#pragma once

#include <filesystem>
#include <string>

namespace bench {

class Document;
class Host;

/// Makes sure that a report of the document can be written there. `InputError` for an ending other than
/// .html, .pdf and .txt, and for the document itself.
void CheckReportFile(const std::filesystem::path& document, const std::filesystem::path& out);

/// Writes the report, as its ending says: HTML, PDF or plain text. The file is replaced as a whole.
/// @param language of the report, such as "de"; empty for English
/// @throws HostError when the report cannot be made or written
void WriteReport(const Document& document, Host& host, const std::string& language,
                 const std::filesystem::path& out);

}  // namespace bench
