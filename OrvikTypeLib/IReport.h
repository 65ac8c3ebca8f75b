#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// The report that is being printed.
/// A table is three strings: column format, header row, body rows. Cells are separated by "|", a row ends
/// with ";", and a cell may hold a rich-text group in braces with the controls \\b and \\i. In the column
/// format each column is an alignment mark ("<" left, ">" right, "^" centred), optionally "+" (ruled),
/// optionally "!", and the width in twips. Text that is not markup is written through `Escape`.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IReport : public virtual IObject {
 public:
  /// A measure of the page; number 10 is the usable width in twips. `HostError` for numbers that the report
  /// does not know.
  std::int32_t Metric(std::int32_t lNumber) const { return IReport_Metric(lNumber); }
  /// First layout property of the tables that follow: the border style (7: box, columns and rows).
  void SetTableBorder(std::int32_t lStyle) { IReport_SetTableBorder(lStyle); }
  /// Second layout property: indent of the table.
  void SetTableIndent(std::int32_t lTwips) { IReport_SetTableIndent(lTwips); }
  /// Third layout property: rows repeated at the top of each page.
  void SetHeaderRows(std::int32_t lRows) { IReport_SetHeaderRows(lRows); }
  /// Adds a table. `HostError` when the markup is malformed.
  void AddTable(const std::string& sFormat, const std::string& sHeader, const std::string& sRows) {
    IReport_AddTable(sFormat, sHeader, sRows);
  }
  /// The text with everything that would read as markup made plain.
  std::string Escape(const std::string& sText) const { return IReport_Escape(sText); }

 private:
  virtual std::int32_t IReport_Metric(std::int32_t lNumber) const = 0;
  virtual void IReport_SetTableBorder(std::int32_t lStyle) = 0;
  virtual void IReport_SetTableIndent(std::int32_t lTwips) = 0;
  virtual void IReport_SetHeaderRows(std::int32_t lRows) = 0;
  virtual void IReport_AddTable(const std::string& sFormat, const std::string& sHeader,
                                const std::string& sRows) = 0;
  virtual std::string IReport_Escape(const std::string& sText) const = 0;
};

}  // namespace orvik
