#pragma once

#include <filesystem>
#include <string>

#include "host/report/Report.h"

namespace host::bench {

/// The format of a report's file.
enum class ReportFormat { kHtml, kPdf, kText };

/// The format of that name, "html", "pdf" or "txt"; `InputError` naming --format for another one.
ReportFormat ReportFormatNamed(const std::string& name);
/// The format of the file's ending; `InputError` for another ending than .html, .pdf and .txt.
ReportFormat ReportFormatOf(const std::filesystem::path& file);

/// The report, as it is to be written.
/// @throws HostError when the PDF cannot be made
std::string ReportText(const report::Report& report, ReportFormat format);

/// Makes sure that a report of the document can be written there. `InputError` for the document itself.
void RefuseDocumentAsReport(const std::filesystem::path& document, const std::filesystem::path& out);

/// The same, and an ending that says the format.
void CheckReportFile(const std::filesystem::path& document, const std::filesystem::path& out);

/// Writes the report, as the file's ending says: HTML, PDF or plain text. The file is replaced as a whole.
/// @throws HostError when it cannot be made or written
void WriteReport(const report::Report& report, const std::filesystem::path& out);

}  // namespace host::bench
