#include "host/qt/FormPresenter.h"

#include <QEvent>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <utility>

#include "host/qt/Conversions.h"
#include "host/qt/Units.h"
#include "host/qt/WidgetMirror.h"
#include "toolkit/headless/Application.h"

namespace host::qt {
namespace {

/// The content of a window; its size hint is the size that the form's layout needs.
class FormWidget final : public QWidget {
 public:
  FormWidget(QWidget* parent, std::weak_ptr<toolkit::headless::Control> form, const Units& units)
      : QWidget(parent), form_(std::move(form)), units_(units) {}
  QSize sizeHint() const override {
    const auto form = form_.lock();
    return form ? units_.Pixels(form->NaturalSize()) : QSize();
  }

 private:
  const std::weak_ptr<toolkit::headless::Control> form_;
  const Units units_;
};

QWidget* NewFormWidget(WidgetMirror& mirror, toolkit::headless::Control& control) {
  const auto& form = dynamic_cast<const toolkit::headless::Form&>(control);
  QWidget* outer = mirror.EmbeddedIn(form);
  auto* widget = new FormWidget(outer, control.weak_from_this(), mirror.GetUnits());
  // Window managers keep dialogs above their owner and minimise them with it.
  if (!outer) widget->setWindowFlags(Qt::Dialog);
  return widget;
}

/// Puts the window above its owner.
void SetOwner(QWidget& window, QWidget* owner) {
  window.winId();
  QWindow* handle = window.windowHandle();
  QWindow* above = owner ? owner->windowHandle() : nullptr;
  if (!handle || handle == above) return;
  if (above && handle->isAncestorOf(above, QWindow::IncludeTransients)) above->setTransientParent(nullptr);
  handle->setTransientParent(above);
}

/// Centres the window on its owner, or else on the screen.
void Centre(QWidget& window, const QWidget* owner) {
  const QRect area = window.screen()->availableGeometry();
  QRect place(QPoint(), window.size());
  place.moveCenter(owner ? owner->frameGeometry().center() : area.center());
  place.moveLeft(std::max(area.left(), std::min(place.left(), area.right() - place.width())));
  place.moveTop(std::max(area.top(), std::min(place.top(), area.bottom() - place.height())));
  window.move(place.topLeft());
}

}  // namespace

FormPresenter::FormPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, NewFormWidget(mirror, control)) {
  GetShown().setFocusPolicy(Qt::ClickFocus);
}

bool FormPresenter::Embedded() const { return GetMirror().EmbeddedIn(GetModel()) != nullptr; }

void FormPresenter::SyncOwn() {
  GetShown().setWindowTitle(WithoutAccessKey(GetModel().Caption()));
  if (!Embedded()) SyncFlags();
}

void FormPresenter::SyncFlags() {
  QWidget& window = GetShown();
  // The model blocks its own windows; the host's window must never be blocked.
  const bool modal = !GetMirror().HostWindow() && GetMirror().Application().IsModal(GetModel());
  const auto modality = modal ? Qt::ApplicationModal : Qt::NonModal;
  const bool topmost = GetModel().Topmost();
  const bool sameTop = window.windowFlags().testFlag(Qt::WindowStaysOnTopHint) == topmost;
  if (sameTop && window.windowModality() == modality) return;
  // Both take effect the next time the window is shown.
  window.hide();
  window.setWindowFlag(Qt::WindowStaysOnTopHint, topmost);
  window.setWindowModality(modality);
}

void FormPresenter::SyncPlace() {
  if (!Embedded()) SyncSize();
  const bool visible = GetModel().Visible();
  if (visible && GetShown().isHidden())
    Appear();
  else
    GetShown().setVisible(visible);
}

void FormPresenter::SyncSize() {
  const orvik::platform::Rect place = GetModel().Bounds();
  const Units& units = GetMirror().GetUnits();
  const bool moved = place.left != place_.left || place.top != place_.top;
  place_ = place;
  if (moved) GetShown().move(units.Pixels(place.left), units.Pixels(place.top));
  GetShown().resize(units.Pixels(orvik::platform::Size{place.width, place.height}));
  given_ = GetShown().size();
}

void FormPresenter::Appear() {
  if (Embedded()) return GetShown().show();
  QWidget* owner = GetMirror().OwnerOfNext(GetModel());
  SetOwner(GetShown(), owner);
  if (place_.left == 0 && place_.top == 0) Centre(GetShown(), owner);
  GetShown().show();
}

bool FormPresenter::Filter(QObject& watched, QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      if (Embedded()) break;
      event.ignore();
      Forward([](toolkit::headless::Form& form) { form.Close(); });
      return true;
    case QEvent::Resize:
      Resized();
      break;
    case QEvent::WindowActivate:
      if (!Embedded()) Activated();
      break;
    default:
      break;
  }
  return Presenter::Filter(watched, event);
}

void FormPresenter::Resized() {
  const QSize size = GetShown().size();
  if (std::exchange(given_, size) == size) return;
  const auto inner = GetMirror().GetUnits().Twips(size);
  if (Embedded())
    // Resized by the host's layout, so not an action of the user: it applies even if the form is blocked.
    GetMirror().Enqueue(Control(), [inner](toolkit::headless::Control& form) {
      form.SetBounds({form.Bounds().left, form.Bounds().top, inner.width, inner.height});
    });
  else
    Forward([inner](toolkit::headless::Form& form) { form.Resize(inner); });
}

void FormPresenter::Activated() {
  // Qt may have moved the focus; the model decides where it is.
  GetMirror().RestoreFocus();
  Forward([](toolkit::headless::Form& form) { form.Activate(); });
}

}  // namespace host::qt
