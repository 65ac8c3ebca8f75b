#include "host/report/pdf/PdfSections.h"

#include <algorithm>

#include "host/report/drawing/DrawBar.h"
#include "host/report/drawing/DrawSign.h"

namespace host::report::pdf {
namespace {

using Rules = PdfTable::Rules;

const drawing::TextStyle kQuietText{8.5, false, drawing::kQuiet};
const std::string kDash = "\u2013";

PdfTable TextTable(const std::string& text, const drawing::TextStyle& style) {
  PdfTable table({{drawing::kUsable}}, {});
  table.AddRow({TextCell(text, style)});
  return table;
}

/// The verdict on its colour, readable from across the room.
PdfTable VerdictTable(const report::Verdict& verdict) {
  constexpr double kPadding = 420, kVerdictSign = 1500, kLeft = kPadding + kVerdictSign + 480;
  const drawing::TextBlock word({{verdict.word}}, drawing::kUsable - kLeft - kPadding, {46, true, Qt::white});
  const drawing::TextBlock sentence({{verdict.sentence}}, drawing::kUsable - kLeft - kPadding,
                                    {14, false, Qt::white});
  const double text = word.Height() + sentence.Height();
  PdfTable table({{drawing::kUsable}}, {});
  table.AddRow({{.text = {},
                 .height = std::max(text, kVerdictSign) + 2 * kPadding,
                 .draw = [=, standing = verdict.standing](QPainter& painter, const QRectF& place) {
                   painter.setPen(Qt::NoPen);
                   painter.setBrush(drawing::ColourOf(standing));
                   painter.drawRoundedRect(place, 160, 160);
                   const double middle = place.center().y();
                   drawing::DrawSign(
                       painter, standing,
                       {place.left() + kPadding, middle - kVerdictSign / 2, kVerdictSign, kVerdictSign},
                       Qt::white);
                   word.Draw(painter, {place.left() + kLeft, middle - text / 2});
                   sentence.Draw(painter, {place.left() + kLeft, middle - text / 2 + word.Height()});
                 }}});
  return table;
}

PdfTable NotesTable(const std::vector<report::Note>& notes) {
  PdfTable table({{drawing::kUsable}}, {.above = 30});
  for (const auto& note : notes) table.AddRow({WordCell(note.standing, note.text)});
  return table;
}

PdfTable JudgementsTable(const report::Section& section, const report::Words& words) {
  PdfTable table({{drawing::kUsable * 0.27},
                  {drawing::kUsable * 0.2},
                  {drawing::kUsable * 0.18},
                  {drawing::kUsable * 0.35}},
                 {.rules = Rules::kRows, .above = 70});
  table.AddHead({TextCell(words.standard, kQuietText), TextCell(words.bounds, kQuietText),
                 TextCell(words.judgement, kQuietText), TextCell(words.bar, kQuietText)});
  for (const auto& judgement : section.judgements) {
    TableCell bar = TextCell(kDash);
    if (judgement.bar) {
      bar.height = drawing::kBarHeight;
      bar.draw = [judgement](QPainter& painter, const QRectF& place) {
        drawing::DrawBar(painter, place, judgement);
      };
    }
    table.AddRow({TextCell(judgement.standard), TextCell(judgement.bounds),
                  WordCell(judgement.standing, judgement.word), bar});
  }
  return table;
}

Qt::AlignmentFlag AlignmentOf(orvik::platform::Alignment alignment) {
  if (alignment == orvik::platform::Alignment::kRight) return Qt::AlignRight;
  return alignment == orvik::platform::Alignment::kCentre ? Qt::AlignHCenter : Qt::AlignLeft;
}

std::vector<PdfTable::Column> ColumnsOf(const report::Table& table) {
  constexpr double kLeast = 300;
  double whole = 0;
  for (const auto& column : table.columns) whole += std::max<double>(column.width, kLeast);
  std::vector<PdfTable::Column> columns;
  for (const auto& column : table.columns)
    columns.push_back(
        {std::max<double>(column.width, kLeast) / whole * drawing::kUsable, AlignmentOf(column.alignment)});
  return columns;
}

}  // namespace

Parts VerdictParts(const report::Report& report) {
  Parts parts{{0, TextTable(report.title, {13, true, drawing::kAccent})},
              {240, VerdictTable(report.verdict)}};
  for (const auto& mark : report.marks) {
    const auto colour = mark.strong ? drawing::kInk : drawing::ColourOf(report::Standing::kOpen);
    parts.push_back({200, TextTable(mark.text, {11, true, colour})});
  }
  return parts;
}

Part HeadingPart(const std::string& text) {
  PdfTable table({{drawing::kUsable}},
                 {.rules = Rules::kRows, .above = 60, .pen = QPen(drawing::kAccent, 24)});
  table.AddRow({TextCell(text, {15, true, drawing::kAccent})});
  return {500, table, text};
}

PdfTable PrintedTable(const report::Table& table) {
  const bool boxed = table.border != 0;
  PdfTable printed(ColumnsOf(table),
                   {.rules = boxed ? Rules::kGrid : Rules::kNone, .above = boxed ? 60.0 : 15.0});
  const auto cellsOf = [](const report::Row& row) {
    std::vector<TableCell> cells;
    for (const auto& cell : row) cells.push_back({cell, {9}});
    return cells;
  };
  for (const auto& row : table.header) printed.AddHead(cellsOf(row));
  for (const auto& row : table.rows) printed.AddRow(cellsOf(row));
  return printed;
}

PdfTable FactsTable(const std::vector<report::Fact>& facts) {
  PdfTable table({{drawing::kUsable * 0.22}, {drawing::kUsable * 0.78}}, {.above = 25});
  for (const auto& fact : facts)
    table.AddRow({TextCell(fact.label, {9.5, false, drawing::kQuiet}), TextCell(fact.value)});
  return table;
}

PdfTable OverviewTable(const report::Report& report) {
  const auto& words = report.words;
  PdfTable table({{drawing::kUsable * 0.07, Qt::AlignRight},
                  {drawing::kUsable * 0.49},
                  {drawing::kUsable * 0.13, Qt::AlignRight},
                  {drawing::kUsable * 0.1},
                  {drawing::kUsable * 0.21}},
                 {.rules = Rules::kRows, .above = 80});
  table.AddHead({TextCell(words.number, kQuietText), TextCell(words.test, kQuietText),
                 TextCell(words.value, kQuietText), TextCell(words.unit, kQuietText),
                 TextCell(words.result, kQuietText)});
  for (const auto& row : report.overview) {
    auto name = TextCell(row.name);
    name.indent = 180.0 * std::min(row.depth, 8);
    if (!row.note.empty()) name.text.push_back({"\n" + row.note, false, true});
    table.AddRow({TextCell(std::to_string(row.id), {9.5, false, drawing::kQuiet}), name,
                  TextCell(row.value.empty() ? kDash : row.value), TextCell(row.unit),
                  WordCell(row.standing, row.word)});
  }
  return table;
}

Parts SectionParts(const report::Section& section, const report::Words& words) {
  const auto title = std::to_string(section.id) + "  " + section.name;
  PdfTable head({{drawing::kUsable * 0.79}, {drawing::kUsable * 0.21}}, {});
  head.AddRow({TextCell(title, {12, true}), WordCell(section.standing, section.word)});
  Parts parts{{0, head, title, 1 + section.depth}};
  if (!section.value.empty()) parts.push_back({0, TextTable(section.value + " " + section.unit, {15})});
  parts.push_back({0, NotesTable(section.notes)});
  parts.push_back({60, FactsTable(section.facts)});
  if (!section.judgements.empty()) parts.push_back({120, JudgementsTable(section, words)});
  if (!section.readings.rows.empty()) {
    parts.push_back({160, TextTable(words.readings, kQuietText)});
    parts.push_back({40, PrintedTable(section.readings)});
  }
  for (const auto& table : section.tables) parts.push_back({160, PrintedTable(table)});
  return parts;
}

void PlaceTogether(const Parts& parts, PdfPages& pages) {
  double height = 0;
  for (const auto& part : parts) height += part.gap + part.table.Height();
  pages.Ensure(height);
  for (const auto& part : parts) {
    if (part.line) pages.Line();
    pages.Gap(part.gap);
    if (!part.title.empty()) pages.Mark(part.title, part.level);
    part.table.Place(pages);
  }
}

}  // namespace host::report::pdf
