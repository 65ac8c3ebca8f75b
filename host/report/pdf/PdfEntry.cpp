#include <exception>

#include "host/report/PdfModule.h"
#include "host/report/pdf/PdfReport.h"

extern "C" {

__attribute__((visibility("default"))) const char* OrvikPdfVersion() { return ORVIK_VERSION; }

__attribute__((visibility("default"))) bool OrvikWritePdf(const host::report::Report& report,
                                                          std::string& pdf, std::string& reason) {
  try {
    pdf = host::report::pdf::PdfReport(report);
    return true;
  } catch (const std::exception& error) {
    reason = error.what();
    return false;
  }
}

}  // extern "C"
