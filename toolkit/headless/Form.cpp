#include "toolkit/headless/Form.h"

#include <algorithm>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "platform/Controls.h"
#include "toolkit/headless/Desktop.h"
#include "toolkit/headless/TextSize.h"

namespace toolkit::headless {
namespace {

constexpr int kAlt = 4;

}  // namespace

Form::Form(std::shared_ptr<Desktop> desktop, std::string name) : Panel(std::move(desktop), std::move(name)) {
  visible_ = false;
}

void Form::SetBounds(const platform::Rect& bounds) {
  sizedByHand_ = true;
  Panel::SetBounds(bounds);
}

void Form::SetVisible(bool visible) {
  if (visible)
    Show();
  else
    Hide();
}

void Form::SetFocus() {
  focus_ = shared_from_this();
  GetDesktop().Forms().Activate(SelfForm());
  GetDesktop().Forms().UpdateFocus();
}

void Form::SetTopmost(bool topmost) {
  topmost_ = topmost;
  NotifyChanged();
}

void Form::Load() {
  if (loaded_) return;
  loaded_ = true;
  GetDesktop().Forms().AddLoaded(SelfForm());
}

void Form::Show() {
  const auto self = SelfForm();
  Load();
  const bool appears = !visible_;
  if (appears) BecomeVisible();
  GetDesktop().Forms().Activate(self);
  if (appears && visible_) GetDesktop().Forms().FormShown().Raise(self);
}

void Form::BecomeVisible() {
  visible_ = true;
  showOrder_ = GetDesktop().Forms().NextShowOrder();
  GetDesktop().NotifyActivity();
  NotifyChanged();
}

void Form::ShowModal(const std::shared_ptr<platform::IForm>& owner) {
  const auto self = SelfForm();
  auto& forms = GetDesktop().Forms();
  if (forms.IsModal(*this))
    Fail(orvik::HostError::kInvalidArgument, "form \"" + Name() + "\" is already shown modally");
  owner_ = std::dynamic_pointer_cast<Form>(owner);
  forms.BeginModal(self);
  // A window that is already open blocks the others from now on.
  showOrder_ = forms.NextShowOrder();
  NotifyChanged();
  try {
    RunModal();
  } catch (...) {
    forms.EndModal(*this);
    Hide();
    throw;
  }
}

void Form::RunModal() {
  const int hiddenBefore = hidden_;
  Show();
  // Hiding the form ends the wait, even if it is shown again.
  while (visible_ && hidden_ == hiddenBefore) GetDesktop().WaitMessages(platform::Time::max());
}

void Form::Hide() {
  if (!visible_) return;
  const auto self = SelfForm();
  visible_ = false;
  ++hidden_;
  NotifyChanged();
  GetDesktop().NotifyActivity();
  GetDesktop().Forms().Hidden(self, std::exchange(owner_, {}).lock());
}

void Form::Unload() {
  if (!loaded_ || unloadingNow_) return;
  const auto self = SelfForm();
  unloadingNow_ = true;
  const auto end = [&] {
    unloadingNow_ = false;
    loaded_ = false;
    GetDesktop().Forms().RemoveLoaded(self);
    Stop();
    NotifyChanged();
  };
  try {
    Hide();
    unloading_.Raise();
    Hide();
  } catch (...) {
    end();
    throw;
  }
  end();
}

bool Form::Active() const { return GetDesktop().Forms().Active().get() == this; }

void Form::Activate() {
  if (!AcceptsInput()) return;
  GetDesktop().NotifyActivity();
  GetDesktop().Forms().Activate(SelfForm());
}

void Form::PressKey(int key, int shift) {
  const auto self = SelfForm();
  if (!PreviewKey(key, shift)) return;
  if (shift & kAlt) return ClickAccessKey(key);
  const auto focused = GetDesktop().Forms().Focused();
  if (focused && focused != self && focused->TopForm() == self) focused->KeyPressed(key, shift);
}

bool Form::PreviewKey(int key, int shift) {
  if (!AcceptsInput()) return false;
  const auto self = SelfForm();
  Activate();
  if (keyPreview_ && AcceptsInput()) keyDown_.Raise(key, shift);
  return AcceptsInput();
}

void Form::ClickAccessKey(int key) {
  for (const auto& control : Controls()) {
    const auto button = std::dynamic_pointer_cast<platform::IButton>(control);
    if (button && AccessKey(button->Caption()) == key) return button->Click();
  }
}

void Form::Close() {
  if (!AcceptsInput()) return;
  const auto self = SelfForm();
  GetDesktop().NotifyActivity();
  bool keep = false;
  closeRequested_.Raise(keep);
  if (!keep) Unload();
}

void Form::Resize(platform::Size inner) {
  if (!AcceptsInput()) return;
  GetDesktop().NotifyActivity();
  SetBounds({Bounds().left, Bounds().top, inner.width, inner.height});
}

std::shared_ptr<Form> Form::TopForm() { return SelfForm(); }

bool Form::AcceptsInput() { return visible_ && enabled_ && GetDesktop().Forms().IsReachable(*this); }

void Form::BecomeActive() {
  const auto self = SelfForm();
  activated_.Raise();
  GetDesktop().Forms().UpdateFocus();
}

std::shared_ptr<Control> Form::FocusTarget() {
  const auto focus = focus_.lock();
  if (focus && (focus.get() == this || (focus->Usable() && focus->TopForm().get() == this))) return focus;
  const auto first = FirstFocus();
  focus_ = first ? first : shared_from_this();
  return focus_.lock();
}

void Form::FocusOn(const std::shared_ptr<Control>& control) {
  focus_ = control;
  GetDesktop().Forms().UpdateFocus();
}

void Form::MoveFocusOn() { GetDesktop().Forms().UpdateFocus(); }

void Form::NaturalSizeChanged() {
  if (sizedByHand_) return;
  // A visible window grows with its texts but does not shrink, so that nothing moves under the pointer.
  const platform::Size least = visible_ ? InnerSize() : platform::Size{};
  Panel::SetBounds({Bounds().left, Bounds().top, std::max(least.width, NaturalSize().width),
                    std::max(least.height, NaturalSize().height)});
}

}  // namespace toolkit::headless
