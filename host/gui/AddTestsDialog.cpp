#include "host/gui/AddTestsDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <map>

#include "host/base/Tr.h"
#include "host/qt/Conversions.h"

namespace host::gui {

namespace {

enum CatalogueColumn { kTestNumber, kTestName, kTestUnit };
constexpr QSize kCatalogueSize(640, 560);
constexpr int kFrames = 48;     ///< margins and frames around the columns, in pixels
constexpr int kFirstDepth = 1;  ///< of the groups that are shown open

bool StandsBelowChosen(const QTreeWidgetItem& row) {
  for (const auto* above = row.parent(); above; above = above->parent())
    if (above->isSelected()) return true;
  return false;
}

}  // namespace

AddTestsDialog::AddTestsDialog(const std::vector<bench::CatalogueEntry>& entries, QWidget* parent)
    : QDialog(parent), search_(new QLineEdit(this)), tests_(new QTreeWidget(this)) {
  setObjectName("addTests");
  setWindowTitle(qt::ToQt(Tr("Add tests")));
  search_->setObjectName("search");
  search_->setPlaceholderText(qt::ToQt(Tr("Search by name or number")));
  search_->setAccessibleName(search_->placeholderText());
  search_->setClearButtonEnabled(true);
  tests_->setObjectName("catalogue");
  tests_->setAccessibleName(qt::ToQt(Tr("Catalogue of tests")));
  tests_->setHeaderLabels({qt::ToQt(Tr("No.")), qt::ToQt(Tr("Test")), qt::ToQt(Tr("Unit"))});
  tests_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tests_->setTreePosition(kTestName);
  tests_->setUniformRowHeights(true);
  // Names often differ at their end, as in "mains reversed".
  tests_->setTextElideMode(Qt::ElideMiddle);
  std::map<std::int32_t, QTreeWidgetItem*> groups;
  for (const auto& entry : entries) {
    const auto above = groups.find(entry.parent);
    auto* row = above == groups.end() ? new QTreeWidgetItem(tests_) : new QTreeWidgetItem(above->second);
    row->setText(kTestNumber, QString::number(entry.testId));
    row->setText(kTestName, qt::ToQt(entry.name));
    row->setToolTip(kTestName, qt::PlainToolTip(entry.name));
    row->setText(kTestUnit, qt::ToQt(entry.unit));
    if (entry.sequence) groups[entry.testId] = row;
    rows_.push_back(row);
  }
  tests_->setColumnWidth(kTestNumber, fontMetrics().horizontalAdvance("000000") + 16);
  tests_->header()->setSectionResizeMode(kTestName, QHeaderView::Stretch);
  tests_->header()->setSectionResizeMode(kTestUnit, QHeaderView::ResizeToContents);
  tests_->header()->setStretchLastSection(false);
  GrowToNames();
  tests_->expandToDepth(kFirstDepth);

  auto* buttons = new QDialogButtonBox(this);
  add_ = buttons->addButton(qt::ToQt(Tr("Add")), QDialogButtonBox::AcceptRole);
  add_->setObjectName("add");
  add_->setEnabled(false);
  buttons->addButton(qt::ToQt(Tr("Cancel")), QDialogButtonBox::RejectRole);
  auto* hint =
      new QLabel(qt::ToQt(Tr("A group adds all its tests. Choose several with Ctrl or Shift.")), this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(search_);
  layout->addWidget(tests_, 1);
  layout->addWidget(hint);
  layout->addWidget(buttons);

  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) { Filter(text); });
  connect(tests_, &QTreeWidget::itemSelectionChanged, this, [this] { add_->setEnabled(!Chosen().empty()); });
  connect(tests_, &QTreeWidget::itemActivated, this, [this] {
    if (!Chosen().empty()) accept();
  });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void AddTestsDialog::GrowToNames() {
  tests_->expandAll();
  const QAbstractItemView& rows = *tests_;
  const int unit = std::max(tests_->header()->sectionSizeHint(kTestUnit), rows.sizeHintForColumn(kTestUnit));
  const int others =
      tests_->columnWidth(kTestNumber) + unit + style()->pixelMetric(QStyle::PM_ScrollBarExtent) + kFrames;
  const int wanted = rows.sizeHintForColumn(kTestName) + others;
  tests_->collapseAll();
  resize(std::clamp(wanted, kCatalogueSize.width(),
                    std::max(kCatalogueSize.width(), screen()->availableSize().width())),
         kCatalogueSize.height());
}

void AddTestsDialog::ShowPictures(
    const std::function<std::vector<std::byte>(std::int32_t testId)>& pictureOf) {
  for (auto* row : rows_) {
    const auto picture = qt::PictureOf(pictureOf(row->text(kTestNumber).toInt()));
    if (!picture.isNull()) row->setIcon(kTestName, QIcon(picture));
  }
}

std::vector<std::int32_t> AddTestsDialog::Chosen() const {
  std::vector<std::int32_t> chosen;
  for (const auto* row : rows_)
    if (row->isSelected() && !row->isHidden() && !StandsBelowChosen(*row))
      chosen.push_back(row->text(kTestNumber).toInt());
  return chosen;
}

void AddTestsDialog::Filter(const QString& wanted) {
  const auto matches = [&wanted](const QTreeWidgetItem& row) {
    return row.text(kTestName).contains(wanted, Qt::CaseInsensitive) ||
           row.text(kTestNumber).startsWith(wanted);
  };
  // From the end: a group is shown for any test in it, and its tests for the group.
  for (auto row = rows_.rbegin(); row != rows_.rend(); ++row) {
    bool shown = matches(**row);
    for (const auto* above = (*row)->parent(); above && !shown; above = above->parent())
      shown = matches(*above);
    for (int i = 0; i < (*row)->childCount() && !shown; ++i) shown = !(*row)->child(i)->isHidden();
    (*row)->setHidden(!shown);
    if (!wanted.isEmpty()) (*row)->setExpanded(true);
    if (!shown) (*row)->setSelected(false);
  }
}

}  // namespace host::gui
