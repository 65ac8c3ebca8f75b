#include "host/report/HtmlReport.h"

#include <algorithm>

#include "host/report/HtmlText.h"

namespace host::report {
namespace {

using report::Standing;
using report::html::ClassOf;
using report::html::Escaped;
using report::html::Isolated;
using report::html::SignOf;

/// Deeper elements of the overview are not indented further.
constexpr int kDeepest = 10;

/// Writes the page from its top to its end.
class Page {
 public:
  explicit Page(const report::Report& report) : report_(report) {}

  std::string Write() {
    Head();
    out_ += "<body>\n";
    StrongMarks();
    out_ += "<div class=\"page\">\n";
    RunningHeader();
    out_ += "<main>\n";
    Summary();
    Overview();
    if (!report_.runs.rows.empty()) {
      Heading2("runs", report_.words.runs);
      Printed(report_.words.runs, report_.runs);
    }
    if (!report_.sections.empty()) Heading2("details", report_.words.details);
    for (const auto& section : report_.sections) Element(section);
    out_ += "</main>\n</div>\n</body>\n</html>\n";
    return std::move(out_);
  }

 private:
  void Head() {
    out_ += "<!DOCTYPE html>\n<html lang=\"" + html::Escaped(report_.language) +
            "\">\n<head>\n<meta charset=\"utf-8\"/>\n" +
            "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n" +
            "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
            "'unsafe-inline'\"/>\n" +
            "<title>" + html::Escaped(report::CaptionOf(report_)) + "</title>\n<style>" + html::kStyle +
            "</style>\n</head>\n";
  }

  /// Stays visible when a screen scrolls, and is across every printed page.
  void StrongMarks() {
    for (const auto& mark : report_.marks) {
      if (!mark.strong) continue;
      out_ += "<p class=\"band\" role=\"note\">" + html::Escaped(mark.text) +
              "</p>\n<div class=\"across\" aria-hidden=\"true\">" + html::Escaped(mark.word) + "</div>\n";
    }
  }

  /// Printed only, at the top of every page. Screen readers skip it, since the page repeats it.
  void RunningHeader() {
    out_ += "<div class=\"running\" aria-hidden=\"true\"><div><p>";
    bool first = true;
    for (const auto& fact : report_.pageHeader) {
      out_ += std::string(first ? "" : " &#183; ") + "<span>" +
              report::Labelled(report_.words, html::Escaped(fact.label), html::Isolated(fact.value)) +
              "</span>";
      first = false;
    }
    out_ += "</p>";
    for (const auto& mark : report_.marks)
      out_ += std::string("<p class=\"mark") + (mark.strong ? " strong" : "") + "\">" +
              html::Escaped(mark.text) + "</p>";
    out_ += "</div></div>\n";
  }

  void Heading2(const std::string& id, const std::string& text) {
    out_ += "<h2 id=\"" + id + "\">" + html::Escaped(text) + "</h2>\n";
  }

  void Summary() {
    out_ += "<h1>" + html::Escaped(report_.title) + "</h1>\n";
    const auto& verdict = report_.verdict;
    out_ += "<div class=\"verdict " + std::string(html::ClassOf(verdict.standing)) + "\">" +
            html::SignOf(verdict.standing) + "<p style=\"margin:0\"><strong>" + html::Escaped(verdict.word) +
            "</strong> <span class=\"why\">" + html::Escaped(verdict.sentence) + "</span></p></div>\n";
    for (const auto& mark : report_.marks)
      if (!mark.strong) out_ += "<p class=\"partial\" role=\"note\">" + html::Escaped(mark.text) + "</p>\n";
    Heading2("summary", report_.words.summary);
    Facts(report_.facts);
  }

  void Facts(const std::vector<report::Fact>& facts) {
    if (facts.empty()) return;
    out_ += "<dl class=\"facts\">\n";
    for (const auto& fact : facts)
      out_ += "<dt>" + html::Escaped(fact.label) + "</dt><dd>" + html::Isolated(fact.value) + "</dd>\n";
    out_ += "</dl>\n";
  }

  static std::string Word(Standing standing, const std::string& word) {
    return std::string("<span class=\"word ") + html::ClassOf(standing) + "\">" + html::SignOf(standing) +
           html::Escaped(word) + "</span>";
  }

  /// A region that scrolls, by the keyboard too, when its content is wider than the screen.
  static std::string Scroll(const std::string& name) {
    return "<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"" + html::Escaped(name) + "\">";
  }

  /// A table whose rows are laid out as lines on a narrow screen. The roles keep it a table for screen
  /// readers.
  void StackedTable(const char* style, const std::string& caption) {
    out_ += std::string("<table role=\"table\" class=\"stacked ") + style + "\">\n" + caption +
            "\n<thead role=\"rowgroup\"><tr role=\"row\">";
  }

  void ColumnHead(const std::string& text, const char* style = "") {
    out_ += std::string("<th scope=\"col\" role=\"columnheader\"") +
            (*style ? std::string(" class=\"") + style + "\"" : "") + ">" + html::Escaped(text) + "</th>";
  }

  void Overview() {
    const auto& words = report_.words;
    Heading2("overview", words.overview);
    if (report_.overview.empty()) {
      out_ += "<p>" + html::Escaped(words.nothing) + "</p>\n";
      return;
    }
    out_ += Scroll(words.overview);
    StackedTable("overview", "<caption class=\"hidden\">" + html::Escaped(words.overview) + "</caption>");
    ColumnHead(words.number, "right number");
    ColumnHead(words.test);
    ColumnHead(words.value, "right");
    ColumnHead(words.unit, "unit");
    ColumnHead(words.result);
    out_ += "</tr></thead>\n<tbody role=\"rowgroup\">\n";
    for (const auto& row : report_.overview) OverviewLine(row);
    out_ += "</tbody>\n</table></div>\n";
  }

  void OverviewLine(const report::OverviewRow& row) {
    const auto id = std::to_string(row.id);
    const auto name = html::Isolated(row.name);
    out_ += "<tr role=\"row\"><td role=\"cell\" class=\"right number\">" + id +
            "</td><th scope=\"row\" role=\"rowheader\" class=\"name\"";
    if (row.depth > 0) out_ += " style=\"--depth:" + std::to_string(std::min(row.depth, kDeepest)) + "\"";
    out_ += ">" +
            (row.anchor.empty() ? name : "<a href=\"#" + html::Escaped(row.anchor) + "\">" + name + "</a>") +
            (row.note.empty() ? "" : "<span class=\"note\">" + html::Isolated(row.note) + "</span>") +
            "</th><td role=\"cell\" class=\"right value\">" +
            (row.value.empty() ? "\u2013" : html::Isolated(row.value)) +
            "</td><td role=\"cell\" class=\"unit\">" + html::Isolated(row.unit) +
            "</td><td role=\"cell\" class=\"result\">" + Word(row.standing, row.word) + "</td></tr>\n";
  }

  void Element(const report::Section& section) {
    const auto anchor = html::Escaped(section.anchor);
    out_ += "<section class=\"element\" id=\"" + anchor + "\" aria-labelledby=\"heading-" + anchor +
            "\">\n<div class=\"head\"><h3 id=\"heading-" + anchor + "\"><span class=\"no\">" +
            std::to_string(section.id) + "</span>" + html::Isolated(section.name) + "</h3> " +
            Word(section.standing, section.word) + "</div>\n";
    if (!section.value.empty())
      out_ += "<p class=\"reading\">" + html::Isolated(section.value) + " <span class=\"unit\">" +
              html::Isolated(section.unit) + "</span></p>\n";
    Notes(section);
    Facts(section.facts);
    Judgements(section);
    if (!section.readings.rows.empty())
      Printed(report_.words.readings + ", " + section.name, section.readings, report_.words.readings);
    for (const auto& table : section.tables) Printed(report_.words.record + ", " + section.name, table);
    out_ += "</section>\n";
  }

  void Notes(const report::Section& section) {
    if (section.notes.empty()) return;
    out_ += "<ul class=\"notes\">\n";
    for (const auto& note : section.notes)
      out_ += std::string("<li class=\"") + html::ClassOf(note.standing) + "\">" +
              html::SignOf(note.standing) + html::Isolated(note.text) + "</li>\n";
    out_ += "</ul>\n";
  }

  void Judgements(const report::Section& section) {
    if (section.judgements.empty()) return;
    const auto& words = report_.words;
    out_ += Scroll(words.limits + ", " + section.name);
    StackedTable("limits", "<caption>" + html::Escaped(words.limits) + "</caption>");
    for (const auto* word : {&words.standard, &words.bounds, &words.judgement, &words.bar}) ColumnHead(*word);
    out_ += "</tr></thead>\n<tbody role=\"rowgroup\">\n";
    for (const auto& judgement : section.judgements)
      out_ += "<tr role=\"row\"><th scope=\"row\" role=\"rowheader\" class=\"standard\">" +
              html::Isolated(judgement.standard) + "</th><td role=\"cell\" class=\"bounds\">" +
              html::Isolated(judgement.bounds) + "</td><td role=\"cell\" class=\"judgement\">" +
              Word(judgement.standing, judgement.word) + "</td><td role=\"cell\" class=\"barcell\">" +
              (judgement.bar ? html::BarOf(judgement) : "\u2013") + "</td></tr>\n";
    out_ += "</tbody>\n</table></div>\n";
  }

  static std::string StyleOf(orvik::platform::Alignment alignment) {
    if (alignment == orvik::platform::Alignment::kRight) return " class=\"right\"";
    return alignment == orvik::platform::Alignment::kCentre ? " class=\"centre\"" : "";
  }

  /// @param caption shown above the table; without one only screen readers get the name
  void Printed(const std::string& name, const report::Table& table, const std::string& caption = {}) {
    out_ += Scroll(name) + "<table class=\"printed " + (table.border ? "ruled" : "plain") + "\">\n" +
            (caption.empty() ? "<caption class=\"hidden\">" + html::Escaped(name)
                             : "<caption>" + html::Escaped(caption)) +
            "</caption>\n";
    if (!table.header.empty()) {
      out_ += "<thead>\n";
      for (const auto& row : table.header) PrintedRow(table, row, "th scope=\"col\"", "th");
      out_ += "</thead>\n";
    }
    out_ += "<tbody>\n";
    for (const auto& row : table.rows) PrintedRow(table, row, "td", "td");
    out_ += "</tbody>\n</table></div>\n";
  }

  void PrintedRow(const report::Table& table, const report::Row& row, const std::string& open,
                  const std::string& close) {
    out_ += "<tr>";
    for (std::size_t column = 0; column < row.size(); ++column) {
      out_ += "<" + open + StyleOf(table.columns[column].alignment) + ">";
      for (const auto& run : row[column]) {
        if (run.bold) out_ += "<b>";
        if (run.italic) out_ += "<i>";
        out_ += html::Isolated(run.text);
        if (run.italic) out_ += "</i>";
        if (run.bold) out_ += "</b>";
      }
      out_ += "</" + close + ">";
    }
    out_ += "</tr>\n";
  }

  const report::Report& report_;
  std::string out_;
};

}  // namespace

std::string HtmlReport(const report::Report& report) { return Page(report).Write(); }

}  // namespace host::report
