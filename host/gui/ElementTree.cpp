#include "host/gui/ElementTree.h"

#include <QEvent>
#include <QHeaderView>
#include <algorithm>
#include <map>
#include <utility>

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/gui/Signs.h"
#include "host/qt/Conversions.h"
#include "host/report/DocumentText.h"
#include "host/report/ReportParts.h"

namespace host::gui {

namespace {

enum Column { kNumber, kName, kResult, kValue, kRemark, kColumns };
constexpr int kIdentifier = Qt::UserRole;
constexpr int kColumnRoom = 12, kWidest = 400;  ///< of a column, in pixels
constexpr int kParent = Qt::UserRole + 1;
constexpr int kHalfLight = 128;

QString VisibleInTree(const std::string& text) { return qt::ToQt(host::VisibleText(text)); }

QString TipOf(const std::string& text) { return qt::PlainToolTip(host::VisibleText(text)); }

std::string RemarkOf(const judge::JudgedElement& element) {
  return Joined(report::ReasonTexts(element), "; ");
}

/// The colours of results are readable on white only; on a dark background only the sign has them.
QBrush ColourIn(const QTreeWidget& tree, report::Standing standing) {
  const bool dark = tree.palette().color(QPalette::Base).lightness() < kHalfLight;
  return dark ? QBrush() : QBrush(QColor(ColourName(standing)));
}

void Fill(QTreeWidgetItem& row, const ElementTree::RowText& text) {
  const auto name = VisibleInTree(text.name);
  const auto word = qt::ToQt(text.word);
  row.setText(kNumber, QString::number(text.id));
  row.setText(kName, name);
  row.setToolTip(kName, TipOf(text.name));
  row.setText(kResult, word);
  row.setIcon(kResult, text.running ? QIcon() : SignIcon(text.standing));
  row.setForeground(kResult, text.running ? QBrush() : ColourIn(*row.treeWidget(), text.standing));
  row.setText(kValue, VisibleInTree(text.value));
  row.setTextAlignment(kValue, Qt::AlignRight | Qt::AlignVCenter);
  row.setText(kRemark, VisibleInTree(text.remark));
  row.setToolTip(kRemark, TipOf(text.remark));
  row.setData(kName, Qt::AccessibleTextRole, name + ", " + word);
  auto font = row.font(kName);
  font.setBold(text.running);
  for (int column = 0; column < kColumns; ++column) row.setFont(column, font);
}

ElementTree::RowText RowTextOf(const judge::JudgedElement& element, bool running) {
  return {element.id,
          element.name,
          running ? Tr("running") : Tr(judge::VerdictText(element.verdict)),
          report::ReadingText(element),
          RemarkOf(element),
          report::parts::StandingOf(element),
          running};
}

}  // namespace

ElementTree::ElementTree(QWidget* parent) : QTreeWidget(parent) {
  setObjectName("tree");
  setAccessibleName(qt::ToQt(Tr("Elements of the document")));
  setColumnCount(kColumns);
  setHeaderLabels({qt::ToQt(Tr("No.")), qt::ToQt(Tr("Test")), qt::ToQt(Tr("Result")), qt::ToQt(Tr("Value")),
                   qt::ToQt(Tr("Remark"))});
  setUniformRowHeights(true);
  // Names often differ at their end, as in "mains reversed".
  setTextElideMode(Qt::ElideMiddle);
  setAllColumnsShowFocus(true);
  setAlternatingRowColors(true);
  // Names are aligned, however long the number before them is.
  setTreePosition(kName);
  header()->setStretchLastSection(true);
  header()->setSectionsMovable(false);
  const auto width = [this](const QString& text) { return fontMetrics().horizontalAdvance(text); };
  setColumnWidth(kNumber, width("00000"));
  setColumnWidth(kName, width("Protective earth, with mains cord, lead 1") + 40);
  setColumnWidth(kResult, width(qt::ToQt(Tr("not applicable"))) + 36);
  setColumnWidth(kValue, width("00000.0 mOhm") + 16);
}

void ElementTree::Show(const judge::JudgedDocument& document, std::int32_t running) {
  const bool same = ShowsTheSame(document);
  if (!same) Build(document);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    auto text = RowTextOf(document.elements[i], document.elements[i].id == running);
    // Filling a row takes far longer than judging its element.
    if (same && text == texts_[i]) continue;
    Fill(*rows_[i], text);
    texts_[i] = std::move(text);
  }
  if (same) return;
  for (const auto column : {kName, kResult})
    setColumnWidth(column, std::clamp(sizeHintForColumn(column) + kColumnRoom, columnWidth(column), kWidest));
}

std::optional<std::int32_t> ElementTree::Chosen() const {
  const auto* row = currentItem();
  if (!row || !row->isSelected()) return {};
  return row->data(kNumber, kIdentifier).toInt();
}

void ElementTree::Choose(std::int32_t id) {
  for (auto* row : rows_)
    if (row->data(kNumber, kIdentifier).toInt() == id) setCurrentItem(row);
}

void ElementTree::OnChosen(std::function<void()> chosen) {
  connect(this, &QTreeWidget::itemSelectionChanged, this, std::move(chosen));
}

void ElementTree::changeEvent(QEvent* event) {
  QTreeWidget::changeEvent(event);
  // The rows' colours depend on it.
  if (event->type() == QEvent::PaletteChange) texts_.assign(rows_.size(), {});
}

bool ElementTree::ShowsTheSame(const judge::JudgedDocument& document) const {
  if (rows_.size() != document.elements.size()) return false;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (rows_[i]->data(kNumber, kIdentifier).toInt() != document.elements[i].id ||
        rows_[i]->data(kNumber, kParent).toInt() != document.elements[i].parent)
      return false;
  }
  return true;
}

void ElementTree::Build(const judge::JudgedDocument& document) {
  const auto chosen = Chosen();
  const QSignalBlocker quiet(this);
  clear();
  rows_.clear();
  std::map<std::int32_t, QTreeWidgetItem*> sequences;
  for (const auto& element : document.elements) {
    const auto above = sequences.find(element.parent);
    auto* row = above == sequences.end() ? new QTreeWidgetItem(this) : new QTreeWidgetItem(above->second);
    row->setData(kNumber, kIdentifier, element.id);
    row->setData(kNumber, kParent, element.parent);
    if (element.group) sequences[element.id] = row;
    rows_.push_back(row);
  }
  texts_.assign(rows_.size(), {});
  expandAll();
  if (chosen) Choose(*chosen);
}

}  // namespace host::gui
