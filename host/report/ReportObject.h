#pragma once

#include <memory>
#include <vector>

#include "OrvikTypeLib/IReport.h"
#include "host/report/Table.h"

namespace host::report {

/// Collects the tables that the plug-in prints; outputs turn them into text or pages.
class ReportObject final : public orvik::IReport {
 public:
  /// Usable width of an A4 page with margins of 2 cm, in twips: 170 mm at 1,440 twips an inch.
  static constexpr std::int32_t kUsableWidth = 170 * 14400 / 254;

  const std::vector<report::Table>& Tables() const { return tables_; }

 private:
  std::int32_t IReport_Metric(std::int32_t lNumber) const override;
  void IReport_SetTableBorder(std::int32_t lStyle) override { border_ = lStyle; }
  void IReport_SetTableIndent(std::int32_t lTwips) override { indent_ = lTwips; }
  void IReport_SetHeaderRows(std::int32_t lRows) override { headerRows_ = lRows; }
  void IReport_AddTable(const std::string& sFormat, const std::string& sHeader,
                        const std::string& sRows) override;
  std::string IReport_Escape(const std::string& sText) const override { return report::Escape(sText); }

  std::int32_t border_ = 0;
  std::int32_t indent_ = 0;
  std::int32_t headerRows_ = 0;
  std::vector<report::Table> tables_;
};

}  // namespace host::report
