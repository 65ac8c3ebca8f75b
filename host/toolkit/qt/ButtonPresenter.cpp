#include "host/toolkit/qt/ButtonPresenter.h"

#include <QKeyEvent>

#include "host/toolkit/qt/Keys.h"
#include "host/toolkit/qt/Texts.h"

namespace bench::qt {

ButtonPresenter::ButtonPresenter(Stage& stage, headless::Control& control)
    : PresenterFor(stage, control, new QPushButton) {
  When(&GetShown(), &QPushButton::clicked,
       [this] { Forward([](headless::Button& button) { button.Click(); }); });
}

void ButtonPresenter::SyncOwn() { GetShown().setText(WithAccessKey(GetModel().Caption())); }

bool ButtonPresenter::Filter(QObject& watched, QEvent& event) {
  if (Presenter::Filter(watched, event)) return true;
  if (event.type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<QKeyEvent&>(event);
  if (KeyOf(key) != orvik::platform::kKeyReturn || key.isAutoRepeat()) return false;
  GetShown().click();
  return true;
}

}  // namespace bench::qt
