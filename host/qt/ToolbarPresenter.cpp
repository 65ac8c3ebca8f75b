#include "host/qt/ToolbarPresenter.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

#include "host/qt/Conversions.h"

namespace host::qt {

ToolbarPresenter::ToolbarPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, new QWidget) {
  auto* row = new QHBoxLayout(&GetShown());
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->setAlignment(Qt::AlignLeft);
}

void ToolbarPresenter::SyncOwn() {
  // Commands are never removed.
  const std::size_t known = commands_.size();
  commands_ = GetModel().Commands();
  AddFrom(known);
  const toolkit::headless::Toolbar& model = GetModel();
  for (const auto& [command, button] : buttons_) {
    button->setText(WithAccessKey(model.CommandCaption(command)));
    button->setAccessibleName(WithoutAccessKey(model.CommandCaption(command)));
    button->setToolTip(PlainToolTip(model.CommandToolTip(command)));
    button->setEnabled(model.CommandEnabled(command));
    button->setVisible(model.CommandVisible(command));
  }
  for (const auto& [command, entry] : entries_) {
    entry->setText(WithAccessKey(model.CommandCaption(command)));
    entry->setEnabled(model.CommandEnabled(command));
    entry->setVisible(model.CommandVisible(command));
  }
}

void ToolbarPresenter::AddFrom(std::size_t first) {
  for (std::size_t place = first; place < commands_.size(); ++place) {
    const int parent = GetModel().CommandParent(commands_[place]);
    if (parent == 0)
      AddButton(commands_[place]);
    else
      AddEntry(parent, commands_[place]);
  }
}

void ToolbarPresenter::AddButton(int command) {
  auto* button = new QToolButton(&GetShown());
  button->setObjectName(NameOf(command));
  button->setToolButtonStyle(Qt::ToolButtonTextOnly);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  When(button, &QToolButton::clicked, [this, command] { Chosen(command); });
  GetShown().layout()->addWidget(button);
  buttons_[command] = button;
}

void ToolbarPresenter::AddEntry(int parent, int command) {
  QToolButton* button = buttons_.at(parent);
  if (!button->menu()) {
    button->setMenu(new QMenu(button));
    button->setPopupMode(QToolButton::InstantPopup);
  }
  QAction* entry = button->menu()->addAction(QString());
  entry->setObjectName(NameOf(command));
  When(entry, &QAction::triggered, [this, command] { Chosen(command); });
  entries_[command] = entry;
}

QString ToolbarPresenter::NameOf(int command) const {
  return QStringLiteral("%1.%2").arg(ToQt(GetModel().Name())).arg(command);
}

void ToolbarPresenter::Chosen(int command) {
  Forward([command](toolkit::headless::Toolbar& toolbar) { toolbar.Click(command); });
}

}  // namespace host::qt
