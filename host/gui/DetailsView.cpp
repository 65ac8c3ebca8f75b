#include "host/gui/DetailsView.h"

#include <QPainter>
#include <QPixmap>
#include <QUrl>

#include "host/base/Tr.h"
#include "host/gui/Signs.h"
#include "host/qt/Conversions.h"
#include "host/report/HtmlText.h"
#include "host/report/ReportParts.h"
#include "host/report/drawing/DrawBar.h"
#include "host/report/drawing/PageStyle.h"

namespace host::gui {

namespace {

using report::html::Escaped;

constexpr double kBarTwips = 4200;  ///< width of a bar

std::string Cell(const std::string& content, bool head = false) {
  return std::string(head ? "<th align=\"left\">" : "<td>") + content + (head ? "</th>" : "</td>");
}

constexpr char kTableStart[] =
    "<table cellpadding=\"4\" cellspacing=\"0\" border=\"1\" "
    "style=\"border-style: solid; border-color: #d0d6df;\">";

std::string Lines(const std::string& text) {
  std::string lines;
  for (const char letter : text)
    lines += letter == '\n' ? std::string("<br/>") : report::html::Escaped({&letter, 1});
  return lines;
}

std::string Heading(const std::string& text) { return "<h3>" + report::html::Escaped(text) + "</h3>"; }

std::string Coloured(report::Standing standing, const std::string& text) {
  return "<span style=\"color: " + ColourName(standing).toStdString() + "; font-weight: bold;\">" +
         report::html::SignOf(standing) + " " + text + "</span>";
}

std::string StyledCell(const report::Cell& cell) {
  std::string text;
  for (const auto& run : cell) {
    auto piece = Lines(run.text);
    if (run.bold) piece = "<b>" + piece + "</b>";
    if (run.italic) piece = "<i>" + piece + "</i>";
    text += piece;
  }
  return text;
}

std::string TableText(const report::Table& table) {
  std::string text = kTableStart;
  const auto rows = [&text](const std::vector<report::Row>& all, bool head) {
    for (const auto& row : all) {
      text += "<tr>";
      for (const auto& cell : row) text += Cell(StyledCell(cell), head);
      text += "</tr>";
    }
  };
  rows(table.header, true);
  rows(table.rows, false);
  return text + "</table><p></p>";
}

/// Each row as a list of its cells, since the page is too narrow for many columns.
std::string RowsText(const report::Table& table) {
  std::string text;
  for (const auto& row : table.rows) {
    text += "<table cellpadding=\"2\">";
    for (std::size_t i = 0; i < row.size(); ++i)
      text += "<tr><td><span style=\"color: #566072;\">" + StyledCell(table.header.front()[i]) +
              "</span></td>" + Cell(StyledCell(row[i])) + "</tr>";
    text += "</table><hr/>";
  }
  return text;
}

std::string FactsText(const std::vector<report::Fact>& facts) {
  std::string text = "<table cellpadding=\"2\">";
  for (const auto& fact : facts)
    text += "<tr><td><span style=\"color: #566072;\">" + report::html::Escaped(fact.label) + "</span></td>" +
            Cell(Lines(fact.value)) + "</tr>";
  return text + "</table>";
}

QPixmap BarPicture(const report::Judgement& judgement, const QWidget& screen) {
  const double scale = screen.logicalDpiX() / static_cast<double>(report::drawing::kTwipsPerInch);
  const double sharp = screen.devicePixelRatioF();
  const QSizeF size(kBarTwips * scale, report::drawing::kBarHeight * scale);
  QPixmap picture((size * sharp).toSize());
  picture.setDevicePixelRatio(sharp);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  report::drawing::DrawBar(painter, QRectF(0, 0, kBarTwips, report::drawing::kBarHeight), judgement);
  return picture;
}

}  // namespace

DetailsView::DetailsView(QWidget* parent) : QTextBrowser(parent) {
  setObjectName("details");
  setAccessibleName(qt::ToQt(Tr("Details of the chosen element")));
  setOpenLinks(false);
  // White in every colour scheme: the signs are readable on white only.
  setStyleSheet("QTextBrowser { background: white; color: #1c2330; }");
}

void DetailsView::Show(const report::Section& section, const std::vector<std::string>& settings) {
  document()->clear();  // with the pictures of the page before
  std::string page = "<h2>" + std::to_string(section.id) + "&nbsp; " + report::html::Escaped(section.name) +
                     "</h2><p>" + Coloured(section.standing, report::html::Escaped(section.word));
  if (!section.value.empty())
    page +=
        " &nbsp; <b>" + report::html::Escaped(section.value) + "</b> " + report::html::Escaped(section.unit);
  page += "</p>";
  for (const auto& note : section.notes) page += "<p>" + Coloured(note.standing, Lines(note.text)) + "</p>";
  if (!section.facts.empty()) page += FactsText(section.facts);
  if (!section.judgements.empty()) page += LimitsOf(section);
  if (!settings.empty()) {
    page += Heading(Tr("Settings")) + "<p>";
    for (const auto& line : settings) page += report::html::Escaped(line) + "<br/>";
    page += "</p>";
  }
  if (!section.readings.rows.empty())
    page += Heading(report::parts::WordsOfReport().readings) + TableText(section.readings);
  if (!section.tables.empty()) page += Heading(Tr("Record"));
  for (const auto& table : section.tables) page += TableText(table);
  ShowPage(page);
}

void DetailsView::ShowFacts(const std::string& title, const std::vector<std::string>& facts,
                            const report::Table& runs) {
  document()->clear();
  std::string page = title.empty() ? "" : "<h2>" + report::html::Escaped(title) + "</h2>";
  for (const auto& fact : facts) page += "<p>" + Lines(fact) + "</p>";
  if (!runs.rows.empty()) page += Heading(report::parts::WordsOfReport().runs) + RowsText(runs);
  ShowPage(page);
}

void DetailsView::ShowPage(const std::string& page) { setHtml(qt::ToQt(page)); }

std::string DetailsView::LimitsOf(const report::Section& section) {
  const auto words = report::parts::WordsOfReport();
  std::string text = Heading(words.limits) + kTableStart + "<tr>" +
                     Cell(report::html::Escaped(words.standard), true) +
                     Cell(report::html::Escaped(words.bounds), true) +
                     Cell(report::html::Escaped(words.judgement), true) + "</tr>";
  for (std::size_t i = 0; i < section.judgements.size(); ++i) {
    const auto& judgement = section.judgements[i];
    text += "<tr>" + Cell(report::html::Escaped(judgement.standard)) +
            Cell(report::html::Escaped(judgement.bounds)) +
            Cell(Coloured(judgement.standing, report::html::Escaped(judgement.word))) + "</tr>";
    if (!judgement.bar) continue;
    const auto name = "bar-" + std::to_string(i);
    document()->addResource(QTextDocument::ImageResource, QUrl(qt::ToQt(name)), BarPicture(judgement, *this));
    text += "<tr><td colspan=\"3\"><img src=\"" + name + "\"/><br/>" +
            report::html::Escaped(judgement.inWords) + "</td></tr>";
  }
  return text + "</table>";
}

}  // namespace host::gui
