#include "host/app/report/ReportFile.h"

#include "host/app/InputError.h"
#include "host/app/ProgramFiles.h"
#include "host/app/report/DocumentReport.h"
#include "host/pdf/PdfModule.h"
#include "host/report/HtmlReport.h"
#include "host/report/TextReport.h"
#include "host/services/Files.h"
#include "host/services/Text.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

using Output = std::string (*)(const report::Report&);

std::string PdfReport(const report::Report& report) { return WritePdf(report, files::PdfModule()); }

/// The output that a file's ending stands for.
Output OutputFor(const std::filesystem::path& file) {
  const auto ending = LowerAscii(file.extension().string());
  if (ending == ".html") return HtmlReport;
  if (ending == ".pdf") return PdfReport;
  if (ending == ".txt") return TextReport;
  throw InputError(
      Tr("--to %%1: reports are written as .html, .pdf or .txt; give a name that ends with one of them",
         {file.string()}));
}

}  // namespace

void CheckReportFile(const std::filesystem::path& document, const std::filesystem::path& out) {
  OutputFor(out);
  std::error_code absent;  // what is not there is no other file either
  if (std::filesystem::equivalent(document, out, absent))
    throw InputError(
        Tr("--to %%1: this is the document itself; give the report another name", {out.string()}));
}

void WriteReport(const Document& document, Host& host, const std::string& language,
                 const std::filesystem::path& out) {
  ReplaceFile(out, OutputFor(out)(ReportOf(document, host, language)));
}

}  // namespace bench
