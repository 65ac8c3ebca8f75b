#pragma once

#include "host/pdf/PdfBlocks.h"
#include "host/report/Report.h"

/// The parts of the report as blocks.
namespace bench::pdf {

std::unique_ptr<Block> FactsBlock(const std::vector<report::Fact>& facts);
std::unique_ptr<Block> OverviewBlock(const report::Report& report);
/// A table of texts, whose columns share the width as they say.
std::unique_ptr<Block> PrintedBlock(const report::Table& table);
/// Everything about one element.
Blocks SectionBlocks(const report::Section& section, const report::Words& words, bool first);

}  // namespace bench::pdf
