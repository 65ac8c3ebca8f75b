#include "host/report/ReportObject.h"

#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"

namespace host::report {

std::int32_t ReportObject::IReport_Metric(std::int32_t lNumber) const {
  if (lNumber == 10) return kUsableWidth;
  throw orvik::HostError(orvik::HostError::kInvalidArgument, "OrvikTypeLib.Report",
                         Tr("the report has no metric %%1", {std::to_string(lNumber)}));
}

void ReportObject::IReport_AddTable(const std::string& sFormat, const std::string& sHeader,
                                    const std::string& sRows) {
  report::Table table;
  table.border = border_;
  table.indent = indent_;
  table.headerRows = headerRows_;
  table.columns = report::ParseFormat(sFormat);
  table.header = report::ParseRows(sHeader, table.columns.size());
  table.rows = report::ParseRows(sRows, table.columns.size());
  tables_.push_back(std::move(table));
}

}  // namespace host::report
