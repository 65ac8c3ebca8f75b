#include "results/ResultReport.h"

#include <cstdint>

#include "OrvikTypeLib/IReport.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/base/ReportMarkup.h"

namespace keld::ResultReport {
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
  using ReportMarkup::kCentred;
  using ReportMarkup::kLeft;
  using ReportMarkup::kRight;
  const std::int32_t lWidth = (Report.Metric(kUsableWidth) - kFixedWidth) / 4;
  return ReportMarkup::Format({{kLeft, true, false, kMargin},
                               {kLeft, false, false, kNameWidth},
                               {kRight, true, false, lWidth},
                               {kRight, true, false, lWidth},
                               {kCentred, true, false, lWidth},
                               {kLeft, true, true, lWidth},
                               {kLeft, true, false, kMargin}});
}

std::string Header(const orvik::IReport& Report) {
  return ReportMarkup::Row({"", HeaderCell(Report, MKELDLanguageConstants::kResult),
                            HeaderCell(Report, MKELDLanguageConstants::kValue),
                            HeaderCell(Report, MKELDLanguageConstants::kUnit)});
}

}  // namespace keld::ResultReport
