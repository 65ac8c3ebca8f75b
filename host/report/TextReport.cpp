#include "host/report/TextReport.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "host/base/TextCells.h"
#include "host/base/VisibleText.h"
#include "host/report/TextLines.h"
#include "host/report/TextTable.h"

namespace host::report {
namespace {

using orvik::platform::Alignment;
using report::Standing;

constexpr std::size_t kWidth = 100;
constexpr std::size_t kIndent = 3;
constexpr std::size_t kBar = 49;

const char* PlainSignOf(Standing standing) {
  // In the order of `Standing`.
  constexpr std::array kSigns{"[+]", "[X]", "[!]", "[?]", "[#]", "[o]", "[~]", "[=]", "[-]"};
  return kSigns.at(static_cast<std::size_t>(standing));
}

std::string Signed(Standing standing, const std::string& text) {
  return PlainSignOf(standing) + (" " + text);
}

/// With the small letters of ISO 8859-1 as capitals, as far as it has them.
std::string Upper(const std::string& text) {
  constexpr char32_t kDivision = 0xF7, kApart = 0x20;
  std::string capitals;
  for (const auto letter : host::CodePoints(text)) {
    const bool small = (letter >= 'a' && letter <= 'z') || (letter >= 0xE0 && letter <= 0xFE);
    host::AppendUtf8(capitals, small && letter != kDivision ? letter - kApart : letter);
  }
  return capitals;
}

report::Cell CellOf(const std::string& text) { return {{text}}; }

class Text {
 public:
  explicit Text(const report::Report& report) : report_(report) {}

  std::string Write() {
    Heading(report_.title, '=');
    Verdict();
    Heading(report_.words.summary, '-');
    Facts(report_.facts, 0);
    Heading(report_.words.overview, '-');
    Overview();
    if (!report_.runs.rows.empty()) {
      Heading(report_.words.runs, '-');
      out_ += TextTable(report_.runs, kWidth);
    }
    if (!report_.sections.empty()) Heading(report_.words.details, '-');
    for (const auto& section : report_.sections) Element(section);
    Marks();
    return std::move(out_);
  }

 private:
  void Heading(const std::string& text, char line) {
    out_ += (out_.empty() ? "" : "\n\n") + text + "\n" + std::string(CellsOf(text), line) + "\n\n";
    StrongMarks();
  }

  void Marks() {
    for (const auto& mark : report_.marks) out_ += "\n*** " + mark.text + " ***\n";
  }

  /// A text has no pages: each part says it, so that any screen or sheet of it does.
  void StrongMarks() {
    bool any = false;
    for (const auto& mark : report_.marks) {
      if (!mark.strong) continue;
      out_ += "*** " + mark.word + " ***\n";
      any = true;
    }
    if (any) out_ += "\n";
  }

  void Verdict() {
    const auto& verdict = report_.verdict;
    out_ += "    " + Signed(verdict.standing, " " + Upper(verdict.word)) + "\n\n         " +
            verdict.sentence + "\n";
    Marks();
  }

  void Facts(const std::vector<report::Fact>& facts, std::size_t indent) {
    std::size_t widest = 0;
    for (const auto& fact : facts) widest = std::max(widest, CellsOf(fact.label));
    for (const auto& fact : facts) {
      const auto lines = text::Wrapped(fact.value, kWidth - indent - widest - 3);
      out_ += std::string(indent, ' ') + text::Filled(fact.label, widest + 3, Alignment::kLeft) +
              lines.front() + "\n";
      out_ += text::Indented({lines.begin() + 1, lines.end()}, indent + widest + 3);
    }
  }

  void Overview() {
    if (report_.overview.empty()) {
      out_ += report_.words.nothing + "\n";
      return;
    }
    const auto& words = report_.words;
    report::Table table;
    table.border = 7;
    table.columns.resize(5);
    table.columns[0].alignment = table.columns[2].alignment = Alignment::kRight;
    table.header = {{CellOf(words.number), CellOf(words.test), CellOf(words.value), CellOf(words.unit),
                     CellOf(words.result)}};
    for (const auto& row : report_.overview)
      table.rows.push_back({CellOf(std::to_string(row.id)),
                            CellOf(std::string(2 * static_cast<std::size_t>(std::min(row.depth, 10)), ' ') +
                                   row.name + (row.note.empty() ? "" : "\n  " + row.note)),
                            CellOf(row.value.empty() ? "-" : row.value), CellOf(row.unit),
                            CellOf(Signed(row.standing, row.word))});
    out_ += TextTable(table, kWidth);
  }

  void Element(const report::Section& section) {
    if (&section != &report_.sections.front()) StrongMarks();
    const auto word = Signed(section.standing, section.word);
    const auto lines = text::Wrapped(std::to_string(section.id) + "  " + section.name, kWidth - 24);
    out_ += text::Filled(lines.front(), kWidth - 22, Alignment::kLeft) + word + "\n";
    out_ += text::Indented({lines.begin() + 1, lines.end()}, kIndent);
    if (!section.value.empty())
      out_ += text::Indented(text::Wrapped(section.value + " " + section.unit, kWidth - kIndent), kIndent);
    for (const auto& note : section.notes)
      out_ += text::Indented(text::Wrapped(Signed(note.standing, note.text), kWidth - kIndent), kIndent);
    if (!section.facts.empty()) out_ += "\n";
    Facts(section.facts, kIndent);
    for (const auto& judgement : section.judgements) Judgement(judgement);
    if (!section.readings.rows.empty())
      Indent("\n" + report_.words.readings + "\n" + TextTable(section.readings, kWidth - kIndent));
    for (const auto& table : section.tables) Indent("\n" + TextTable(table, kWidth - kIndent));
    out_ += "\n\n";
  }

  void Judgement(const report::Judgement& judgement) {
    const auto line = report::Labelled(report_.words, judgement.standard,
                                       report::Labelled(report_.words, judgement.bounds, judgement.word));
    out_ += "\n" + text::Indented(text::Wrapped(Signed(judgement.standing, line), kWidth - kIndent), kIndent);
    if (!judgement.bar) return;
    Indent(TextBar(*judgement.bar) + "\n");
    out_ += text::Indented(text::Wrapped(judgement.inWords, kWidth - kIndent - 4), kIndent + 4);
  }

  void Indent(const std::string& lines) {
    for (std::size_t at = 0; at < lines.size();) {
      const auto end = lines.find('\n', at);
      const auto line = lines.substr(at, end - at);
      out_ += (line.empty() ? "" : std::string(kIndent, ' ')) + line + "\n";
      at = end + 1;
    }
  }

  const report::Report& report_;
  std::string out_;
};

std::size_t PlaceIn(double at) {
  return static_cast<std::size_t>(std::lround(at * static_cast<double>(kBar - 1)));
}

}  // namespace

std::string TextReport(const report::Report& report) { return Text(report).Write(); }

std::string TextBar(const report::Bar& bar) {
  using Place = report::Bar::Place;
  std::string line(kBar, '.');
  const auto first = bar.low ? PlaceIn(*bar.low) : 0;
  const auto last = bar.high ? PlaceIn(*bar.high) : kBar - 1;
  for (auto i = first; i <= last; ++i) line[i] = '=';
  if (bar.low) line[first] = '|';
  if (bar.high) line[last] = '|';
  auto at = PlaceIn(bar.value);
  // Beside a bound that it breaks or keeps, not on it.
  if (bar.high && at == last && bar.place == Place::kAbove && at + 1 < kBar) ++at;
  if (bar.low && at == first && bar.place == Place::kBelow && at > 0) --at;
  if (bar.place == Place::kWithin && at == last && bar.high && at > first + 1) --at;
  if (bar.place == Place::kWithin && at == first && bar.low && at + 1 < last) ++at;
  line[at] = !bar.beyond ? '*' : bar.value > 0.5 ? '>' : '<';
  return "[" + line + "]";
}

}  // namespace host::report
