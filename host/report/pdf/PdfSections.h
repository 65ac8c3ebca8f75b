#pragma once

#include "host/report/Report.h"
#include "host/report/pdf/PdfTable.h"

/// The parts of the report as tables.
namespace host::report::pdf {

/// A table and the space above it, which falls away at the top of a page.
struct Part {
  double gap = 0;
  PdfTable table;
  std::string title = {};  ///< of its bookmark, if any
  int level = 0;
  bool line = false;  ///< at the top of the gap
};

using Parts = std::vector<Part>;

/// Title, verdict and marks.
Parts VerdictParts(const report::Report& report);
Part HeadingPart(const std::string& text);
PdfTable FactsTable(const std::vector<report::Fact>& facts);
PdfTable OverviewTable(const report::Report& report);
/// A table of texts, whose columns share the width in proportion to theirs.
PdfTable PrintedTable(const report::Table& table);
/// Everything about one element.
Parts SectionParts(const report::Section& section, const report::Words& words);

/// Places the parts on one page, if a page has room for all of them.
void PlaceTogether(const Parts& parts, PdfPages& pages);

}  // namespace host::report::pdf
