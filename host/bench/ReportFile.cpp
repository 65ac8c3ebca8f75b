#include "host/bench/ReportFile.h"

#include <optional>

#include "host/base/Files.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/bench/ProgramFiles.h"
#include "host/report/HtmlReport.h"
#include "host/report/PdfModule.h"
#include "host/report/TextReport.h"

namespace host::bench {

namespace {

std::optional<ReportFormat> FormatNamed(const std::string& name) {
  if (name == "html") return ReportFormat::kHtml;
  if (name == "pdf") return ReportFormat::kPdf;
  if (name == "txt") return ReportFormat::kText;
  return {};
}

}  // namespace

ReportFormat ReportFormatNamed(const std::string& name) {
  if (const auto format = FormatNamed(LowerAscii(name))) return *format;
  throw InputError(Tr("--format %%1: unknown format (html, pdf, txt)", {name}));
}

ReportFormat ReportFormatOf(const std::filesystem::path& file) {
  const auto ending = LowerAscii(file.extension().string());
  if (const auto format = ending.empty() ? std::nullopt : FormatNamed(ending.substr(1))) return *format;
  throw InputError(
      Tr("--to %%1: reports are written as .html, .pdf or .txt; give a name that ends with one of them",
         {file.string()}));
}

std::string ReportText(const report::Report& report, ReportFormat format) {
  switch (format) {
    case ReportFormat::kHtml:
      return report::HtmlReport(report);
    case ReportFormat::kPdf:
      return report::WritePdf(report, files::PdfModule());
    case ReportFormat::kText:
      break;
  }
  return report::TextReport(report);
}

void RefuseDocumentAsReport(const std::filesystem::path& document, const std::filesystem::path& out) {
  std::error_code absent;  // a missing file is a different one
  if (std::filesystem::equivalent(document, out, absent))
    throw InputError(
        Tr("--to %%1: this is the document itself; give the report another name", {out.string()}));
}

void CheckReportFile(const std::filesystem::path& document, const std::filesystem::path& out) {
  ReportFormatOf(out);
  RefuseDocumentAsReport(document, out);
}

void WriteReport(const report::Report& report, const std::filesystem::path& out) {
  ReplaceFile(out, ReportText(report, ReportFormatOf(out)));
}

}  // namespace host::bench
