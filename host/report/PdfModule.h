#pragma once

#include <filesystem>
#include <string>

#include "host/report/Report.h"

namespace host::report {

/// Makes a PDF file of A4 pages with the given module (lib/orvik/orvikPdf.so), which is loaded on first use
/// and stays loaded.
/// @throws HostError 57 when the module cannot be used or the PDF cannot be made
std::string WritePdf(const report::Report& report, const std::filesystem::path& module);

/// The module's entry points.
namespace pdf {

/// `const char* OrvikPdfVersion()`: the version of the program that the module belongs to.
inline constexpr char kVersionEntry[] = "OrvikPdfVersion";
using VersionEntry = const char*();

/// `bool OrvikWritePdf(report, pdf, reason)`: false, with the reason, when the PDF cannot be made.
inline constexpr char kWriteEntry[] = "OrvikWritePdf";
using WriteEntry = bool(const report::Report& report, std::string& pdf, std::string& reason);

}  // namespace pdf

}  // namespace host::report
