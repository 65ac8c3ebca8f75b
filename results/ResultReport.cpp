#include "results/ResultReport.h"

#include <cstdint>

#include "OrvikTypeLib/IReport.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/base/ReportMarkup.h"

namespace keld::results::ResultReport {
namespace {

constexpr std::int32_t kUsableWidth = 10;
constexpr std::int32_t kMargin = 560;
constexpr std::int32_t kNameWidth = 2240;
/// Margins and name column.
constexpr std::int32_t kFixedWidth = 3360;

std::string HeaderCell(const orvik::IReport& Report, const char* sText) {
  return ReportMarkup::BoldItalic(Report.Escape(MKELDGlobalVars::Translated(sText)));
}

}  // namespace

std::string Format(const orvik::IReport& Report) {
  using keld::ReportMarkup::kCentred;
  using keld::ReportMarkup::kLeft;
  using keld::ReportMarkup::kRight;
  const std::int32_t lWidth = (Report.Metric(kUsableWidth) - kFixedWidth) / 4;
  return ReportMarkup::Format({{ReportMarkup::kLeft, true, false, kMargin},
                               {ReportMarkup::kLeft, false, false, kNameWidth},
                               {ReportMarkup::kRight, true, false, lWidth},
                               {ReportMarkup::kRight, true, false, lWidth},
                               {ReportMarkup::kCentred, true, false, lWidth},
                               {ReportMarkup::kLeft, true, true, lWidth},
                               {ReportMarkup::kLeft, true, false, kMargin}});
}

std::string Header(const orvik::IReport& Report) {
  return ReportMarkup::Row({"", HeaderCell(Report, MKELDLanguageConstants::kResult),
                            HeaderCell(Report, MKELDLanguageConstants::kValue),
                            HeaderCell(Report, MKELDLanguageConstants::kUnit)});
}

}  // namespace keld::results::ResultReport
