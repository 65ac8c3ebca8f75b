#pragma once

#include <filesystem>
#include <string>

namespace bench {

class Document;
class Host;

/// What a report is written as.
enum class ReportFormat { kHtml, kPdf, kText };

/// The format of that name, "html", "pdf" or "txt"; `InputError` naming --format for another one.
ReportFormat ReportFormatNamed(const std::string& name);
/// The format that the file's ending stands for; `InputError` for another ending than .html, .pdf and .txt.
ReportFormat ReportFormatOf(const std::filesystem::path& file);

/// The report, as it is to be written.
/// @param language of the report, such as "de"; empty for English
/// @throws HostError when the report cannot be made
std::string ReportText(const Document& document, Host& host, const std::string& language,
                       ReportFormat format);

/// Makes sure that a report of the document can be written there. `InputError` for the document itself.
void RefuseDocumentAsReport(const std::filesystem::path& document, const std::filesystem::path& out);

/// The same, and an ending that says the format.
void CheckReportFile(const std::filesystem::path& document, const std::filesystem::path& out);

/// Writes the report, as its ending says: HTML, PDF or plain text. The file is replaced as a whole.
/// @param language of the report, such as "de"; empty for English
/// @throws HostError when the report cannot be made or written
void WriteReport(const Document& document, Host& host, const std::string& language,
                 const std::filesystem::path& out);

}  // namespace bench
