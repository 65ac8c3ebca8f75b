#include "host/pdf/PdfSections.h"

#include <algorithm>
#include <numeric>

#include "host/pdf/PdfBar.h"
#include "host/pdf/PdfTable.h"

namespace bench::pdf {
namespace {

using Rules = TableBlock::Rules;

TextStyle Quiet() { return {8.5, false, kQuiet}; }

/// Number, name and result of the element; a line divides it from the one before.
class SectionHead final : public Block {
 public:
  SectionHead(const report::Section& section, bool first)
      : title_(std::to_string(section.id) + "  " + section.name),
        level_(1 + section.depth),
        first_(first),
        row_({{kUsable * 0.79}, {kUsable * 0.21}}, Rules::kNone, 100, 0) {
    auto& row = row_.AddRow();
    row.Text(title_, {12, true});
    row.Word(section.standing, section.word);
  }
  double Height() const override { return row_.Height() + 200; }
  void Place(PdfPages& pages) const override {
    pages.Mark(title_, level_);
    if (!first_ && !pages.AtTop()) {
      pages.Draw([y = pages.Y()](QPainter& painter) {
        painter.setPen(QPen(kLine, 14));
        painter.drawLine(QPointF(kMargin, y), QPointF(kMargin + kUsable, y));
      });
      pages.Advance(200);
    }
    row_.Place(pages);
  }

 private:
  std::string title_;
  int level_;
  bool first_;
  TableBlock row_;
};

void AddGap(Blocks& blocks, double height) { blocks.push_back(std::make_unique<GapBlock>(height)); }

void AddNotes(Blocks& blocks, const report::Section& section) {
  if (section.notes.empty()) return;
  auto table =
      std::make_unique<TableBlock>(std::vector<TableBlock::Column>{{kUsable}}, Rules::kNone, 100, 30);
  for (const auto& note : section.notes) table->AddRow().Word(note.standing, note.text);
  blocks.push_back(std::move(table));
}

void AddJudgements(Blocks& blocks, const report::Section& section, const report::Words& words) {
  if (section.judgements.empty()) return;
  auto table = std::make_unique<TableBlock>(
      std::vector<TableBlock::Column>{{kUsable * 0.27}, {kUsable * 0.2}, {kUsable * 0.18}, {kUsable * 0.35}},
      Rules::kRows, 100, 70);
  auto& head = table->AddHead();
  for (const auto* word : {&words.standard, &words.bounds, &words.judgement, &words.bar})
    head.Text(*word, Quiet());
  for (const auto& judgement : section.judgements) {
    auto& row = table->AddRow();
    row.Text(judgement.standard);
    row.Text(judgement.bounds);
    row.Word(judgement.standing, judgement.word);
    if (judgement.bar)
      row.Drawing(kBarHeight, [judgement](QPainter& painter, const QRectF& place) {
        DrawBar(painter, place, judgement);
      });
    else
      row.Text(std::string("\u2013"));
  }
  AddGap(blocks, 120);
  blocks.push_back(std::move(table));
}

/// The name, and below it the reason; deeper elements further in.
report::Cell NameCell(const report::OverviewRow& line) {
  const std::string indent(4 * static_cast<std::size_t>(std::min(line.depth, 8)), ' ');
  report::Cell cell{{indent + line.name}};
  if (!line.note.empty()) cell.push_back({"\n" + indent + line.note, false, true});
  return cell;
}

Qt::AlignmentFlag AlignmentOf(orvik::platform::Alignment alignment) {
  if (alignment == orvik::platform::Alignment::kRight) return Qt::AlignRight;
  return alignment == orvik::platform::Alignment::kCentre ? Qt::AlignHCenter : Qt::AlignLeft;
}

/// The columns of a printed table, which share the width as its format says.
std::vector<TableBlock::Column> ColumnsOf(const report::Table& table) {
  constexpr double kLeast = 300;
  double whole = 0;
  for (const auto& column : table.columns) whole += std::max<double>(column.width, kLeast);
  std::vector<TableBlock::Column> columns;
  for (const auto& column : table.columns)
    columns.push_back(
        {std::max<double>(column.width, kLeast) / whole * kUsable, AlignmentOf(column.alignment)});
  return columns;
}

}  // namespace

std::unique_ptr<Block> PrintedBlock(const report::Table& table) {
  const bool boxed = table.border != 0;
  auto block = std::make_unique<TableBlock>(ColumnsOf(table), boxed ? Rules::kGrid : Rules::kNone, 100,
                                            boxed ? 60 : 15);
  const auto add = [](TableBlock::Row& row, const report::Row& cells) {
    for (const auto& cell : cells) row.Text(cell, {9});
  };
  for (const auto& row : table.header) add(block->AddHead(), row);
  for (const auto& row : table.rows) add(block->AddRow(), row);
  return block;
}

std::unique_ptr<Block> FactsBlock(const std::vector<report::Fact>& facts) {
  auto table = std::make_unique<TableBlock>(
      std::vector<TableBlock::Column>{{kUsable * 0.22}, {kUsable * 0.78}}, Rules::kNone, 100, 25);
  for (const auto& fact : facts) {
    auto& row = table->AddRow();
    row.Text(fact.label, {9.5, false, kQuiet});
    row.Text(fact.value);
  }
  return table;
}

std::unique_ptr<Block> OverviewBlock(const report::Report& report) {
  const auto& words = report.words;
  auto table = std::make_unique<TableBlock>(std::vector<TableBlock::Column>{{kUsable * 0.07, Qt::AlignRight},
                                                                            {kUsable * 0.49},
                                                                            {kUsable * 0.13, Qt::AlignRight},
                                                                            {kUsable * 0.1},
                                                                            {kUsable * 0.21}},
                                            Rules::kRows);
  auto& head = table->AddHead();
  for (const auto* word : {&words.number, &words.test, &words.value, &words.unit, &words.result})
    head.Text(*word, Quiet());
  for (const auto& line : report.overview) {
    auto& row = table->AddRow();
    row.Text(std::to_string(line.id), {9.5, false, kQuiet});
    row.Text(NameCell(line), {});
    row.Text(line.value.empty() ? "\u2013" : line.value);
    row.Text(line.unit);
    row.Word(line.standing, line.word);
  }
  return table;
}

Blocks SectionBlocks(const report::Section& section, const report::Words& words, bool first) {
  Blocks blocks;
  AddGap(blocks, first ? 160 : 420);
  blocks.push_back(std::make_unique<SectionHead>(section, first));
  if (!section.value.empty())
    blocks.push_back(std::make_unique<TextBlock>(section.value + " " + section.unit, TextStyle{15, false}));
  AddNotes(blocks, section);
  if (!section.facts.empty()) {
    AddGap(blocks, 60);
    blocks.push_back(FactsBlock(section.facts));
  }
  AddJudgements(blocks, section, words);
  if (!section.readings.rows.empty()) {
    AddGap(blocks, 160);
    blocks.push_back(std::make_unique<TextBlock>(words.readings, Quiet()));
    AddGap(blocks, 40);
    blocks.push_back(PrintedBlock(section.readings));
  }
  for (const auto& table : section.tables) {
    AddGap(blocks, 160);
    blocks.push_back(PrintedBlock(table));
  }
  return blocks;
}

}  // namespace bench::pdf
