#include <exception>

#include "host/report/PdfModule.h"
#include "host/report/pdf/PdfReport.h"

extern "C" {

__attribute__((visibility("default"))) const char* OrvikPdfVersion() { return ORVIK_VERSION; }

__attribute__((visibility("default"))) bool OrvikWritePdf(const bench::report::Report& report,
                                                          std::string& pdf, std::string& reason) {
  try {
    pdf = bench::PdfReport(report);
    return true;
  } catch (const std::exception& error) {
    reason = error.what();
    return false;
  }
}

}  // extern "C"
