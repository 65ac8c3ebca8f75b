#include "host/qt/SimplePresenters.h"

#include <QKeyEvent>
#include <algorithm>

#include "host/qt/Conversions.h"

namespace host::qt {

LabelPresenter::LabelPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, new QLabel) {
  // Texts of the tester and the operator are never markup.
  GetShown().setTextFormat(Qt::PlainText);
  GetShown().setWordWrap(true);
}

void LabelPresenter::Precedes(const Presenter& next) {
  if (!next.Control().CanFocus()) return;
  GetShown().setBuddy(next.Widget());
  SyncOwn();
}

void LabelPresenter::SyncOwn() {
  const std::string caption = GetModel().Caption();
  GetShown().setText(GetShown().buddy() ? WithAccessKey(caption) : WithoutAccessKey(caption));
}

void FramePresenter::SyncOwn() { GetShown().setTitle(WithAccessKey(GetModel().Caption())); }

ButtonPresenter::ButtonPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, new QPushButton) {
  When(&GetShown(), &QPushButton::clicked,
       [this] { Forward([](toolkit::headless::Button& button) { button.Click(); }); });
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

PictureBoxPresenter::PictureBoxPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, new QLabel) {
  // A bitmap's pixel has a fixed length, independent of the screen's resolution.
  GetShown().setScaledContents(true);
}

void PictureBoxPresenter::SyncOwn() {
  auto bitmap = GetModel().Bitmap();
  if (bitmap == bitmap_) return;
  bitmap_ = std::move(bitmap);
  GetShown().setPixmap(PictureOf(bitmap_));
}

ProgressBarPresenter::ProgressBarPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, new QProgressBar) {
  GetShown().setTextVisible(false);
}

void ProgressBarPresenter::SyncOwn() {
  const int minimum = GetModel().Minimum();
  // Qt shows endless motion for an empty range.
  GetShown().setRange(minimum, std::max(GetModel().Maximum(), minimum + 1));
  GetShown().setValue(GetModel().Value());
}

}  // namespace host::qt
