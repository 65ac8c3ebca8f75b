#include "toolkit/headless/Control.h"

#include <algorithm>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/headless/Desktop.h"
#include "toolkit/headless/Form.h"
#include "toolkit/headless/IScreen.h"
#include "toolkit/headless/Panel.h"

namespace toolkit::headless {

void Fail(std::int32_t number, const std::string& description) {
  throw orvik::HostError(number, "orvik-bench", description);
}

Control::Control(std::shared_ptr<Desktop> desktop, std::string name)
    : desktop_(std::move(desktop)), name_(std::move(name)), handle_(desktop_->Windows().NextHandle()) {}

Control::~Control() {
  if (auto* screen = desktop_->Screen()) screen->Destroyed(*this);
  desktop_->Windows().Remove(handle_);
}

void Control::NotifyChanged() {
  if (auto* screen = desktop_->Screen()) screen->Changed(*this);
}

const IMetrics& Control::Metrics() const { return desktop_->Metrics(); }

void Control::SetCaption(const std::string& text) {
  Apply([&] { caption_ = text; });
}

void Control::SetToolTip(const std::string& text) {
  toolTip_ = text;
  NotifyChanged();
}

void Control::SetBounds(const platform::Rect& bounds) {
  const platform::Rect old = bounds_;
  bounds_ = {bounds.left, bounds.top, std::max(bounds.width, 0), std::max(bounds.height, 0)};
  if (bounds_ == old) return;
  NotifyChanged();
  BoundsChanged(old);
}

void Control::SetVisible(bool visible) {
  Apply([&] { visible_ = visible; });
  LoseFocusWhenUnusable();
}

void Control::SetEnabled(bool enabled) {
  enabled_ = enabled;
  NotifyChanged();
  LoseFocusWhenUnusable();
}

void Control::SetBackColor(platform::Color color) {
  backColor_ = color;
  NotifyChanged();
}

void Control::SetFocus() {
  const auto form = TopForm();
  if (form && CanFocus() && Usable()) form->FocusOn(shared_from_this());
}

bool Control::HasFocus() const { return desktop_->Forms().Focused().get() == this; }

void Control::PlaceOn(const std::shared_ptr<Panel>& panel) {
  container_ = panel;
  SetParentWindow(panel);
}

void Control::SetParentWindow(const std::shared_ptr<Control>& parent) {
  parent_ = parent;
  NotifyChanged();
}

std::shared_ptr<Form> Control::TopForm() {
  const auto parent = ParentWindow();
  return parent ? parent->TopForm() : nullptr;
}

bool Control::Usable() const {
  if (!visible_ || !enabled_) return false;
  const auto parent = ParentWindow();
  return parent && (std::dynamic_pointer_cast<Form>(parent) || parent->Usable());
}

bool Control::AcceptsInput() {
  if (!Usable()) return false;
  const auto form = TopForm();
  return form && form->AcceptsInput();
}

void Control::KeyPressed(int, int) {}

void Control::InnerSizeChanged() {
  if (const auto container = Container()) container->Relayout();
}

bool Control::BeginAction() {
  if (!AcceptsInput()) return false;
  desktop_->NotifyActivity();
  desktop_->Forms().Activate(TopForm());
  if (CanFocus()) SetFocus();
  // Handlers of activation and focus may have hidden or disabled the control.
  return AcceptsInput();
}

void Control::LoseFocusWhenUnusable() {
  if (visible_ && enabled_) return;
  if (const auto form = TopForm()) form->MoveFocusOn();
}

}  // namespace toolkit::headless
