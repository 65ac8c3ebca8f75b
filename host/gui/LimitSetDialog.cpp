#include "host/gui/LimitSetDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "host/base/Tr.h"
#include "host/qt/Conversions.h"

namespace host::gui {

namespace {

constexpr QSize kSetsSize(640, 460);
constexpr int kPlace = Qt::UserRole;  ///< of the set in the list

}  // namespace

LimitSetDialog::LimitSetDialog(std::vector<standards::LimitSets::Entry> sets, const QString& chosen,
                               QWidget* parent)
    : QDialog(parent),
      sets_(std::move(sets)),
      list_(new QTreeWidget(this)),
      all_(new QRadioButton(qt::ToQt(Tr("For &all elements")), this)),
      one_(new QRadioButton(this)) {
  setObjectName("limitSets");
  setWindowTitle(qt::ToQt(Tr("Limits from a set")));
  resize(kSetsSize);
  list_->setObjectName("sets");
  list_->setAccessibleName(qt::ToQt(Tr("Sets of limits")));
  list_->setHeaderLabels(
      {qt::ToQt(Tr("Standard")), qt::ToQt(Tr("Edition, class, type")), qt::ToQt(Tr("Set"))});
  list_->setRootIsDecorated(false);
  for (std::size_t i = 0; i < sets_.size(); ++i) {
    auto* row = new QTreeWidgetItem(list_);
    row->setData(0, kPlace, static_cast<int>(i));
    if (const auto& set = sets_[i].set) {
      row->setText(0, qt::ToQt(set->standard));
      row->setText(1, qt::ToQt(set->Description()));
      row->setText(2, qt::ToQt(set->Name()));
    } else {
      row->setText(0, qt::ToQt(sets_[i].fault));
      row->setToolTip(0, qt::PlainToolTip(sets_[i].fault));
      row->setDisabled(true);
    }
  }
  for (int column = 0; column < 2; ++column) list_->resizeColumnToContents(column);
  all_->setObjectName("forAll");
  all_->setChecked(true);
  one_->setObjectName("forOne");
  one_->setText(qt::ToQt(Tr("Only for the &chosen one, with all below it: %%1",
                            {QString(chosen).replace("&", "&&").toStdString()})));
  one_->setVisible(!chosen.isEmpty());

  auto* buttons = new QDialogButtonBox(this);
  apply_ = buttons->addButton(qt::ToQt(Tr("Set limits")), QDialogButtonBox::AcceptRole);
  apply_->setObjectName("apply");
  apply_->setEnabled(false);
  buttons->addButton(qt::ToQt(Tr("Cancel")), QDialogButtonBox::RejectRole);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addWidget(all_);
  layout->addWidget(one_);
  layout->addWidget(buttons);
  connect(list_, &QTreeWidget::itemSelectionChanged, this, [this] { apply_->setEnabled(Set() != nullptr); });
  connect(list_, &QTreeWidget::itemActivated, this, [this] {
    if (Set()) accept();
  });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

const standards::LimitSet* LimitSetDialog::Set() const {
  const auto chosen = list_->selectedItems();
  if (chosen.isEmpty()) return nullptr;
  const auto& set = sets_[static_cast<std::size_t>(chosen.first()->data(0, kPlace).toInt())].set;
  return set ? &*set : nullptr;
}

bool LimitSetDialog::ForAll() const { return all_->isChecked(); }

}  // namespace host::gui
