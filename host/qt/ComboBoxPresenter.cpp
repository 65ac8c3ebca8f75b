#include "host/qt/ComboBoxPresenter.h"

#include <QLineEdit>

#include "host/qt/Conversions.h"

namespace host::qt {

ComboBoxPresenter::ComboBoxPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, new QComboBox) {
  GetShown().setInsertPolicy(QComboBox::NoInsert);
  When(&GetShown(), &QComboBox::activated,
       [this](int index) { Forward([index](toolkit::headless::ComboBox& box) { box.Choose(index); }); });
}

void ComboBoxPresenter::SyncOwn() {
  SyncEditable();
  SyncItems();
  QComboBox& shown = GetShown();
  shown.setCurrentIndex(GetModel().SelectedIndex());
  const QString text = ToQt(GetModel().Text());
  if (shown.isEditable() && shown.currentText() != text) shown.setEditText(text);
}

void ComboBoxPresenter::SyncEditable() {
  QComboBox& shown = GetShown();
  if (shown.isEditable() == GetModel().Editable()) return;
  shown.setEditable(GetModel().Editable());
  if (!shown.lineEdit()) return;
  // Typed text is not completed.
  shown.setCompleter(nullptr);
  When(shown.lineEdit(), &QLineEdit::textEdited, [this](const QString& text) {
    Forward([typed = FromQt(text)](toolkit::headless::ComboBox& box) { box.TypeOver(typed); });
  });
}

void ComboBoxPresenter::SyncItems() {
  QComboBox& shown = GetShown();
  QStringList items;
  for (const auto& item : GetModel().Items()) items += ToQt(item);
  bool same = shown.count() == items.size();
  for (int index = 0; same && index < shown.count(); ++index) same = shown.itemText(index) == items[index];
  if (same) return;
  shown.clear();
  shown.addItems(items);
}

}  // namespace host::qt
