#pragma once

#include <cstdint>
#include <memory>

#include "platform/IForm.h"
#include "toolkit/headless/Panel.h"

namespace toolkit::headless {

/// A window. Until it is given a size, it is as large as its grid needs.
class Form final : public Panel, public virtual platform::IForm {
 public:
  Form(std::shared_ptr<Desktop> desktop, std::string name);

  void SetBounds(const platform::Rect& bounds) override;
  /// Shows or hides the form.
  void SetVisible(bool visible) override;
  /// Activates the form if possible; the form itself gets the focus.
  void SetFocus() override;

  void Load() override;
  bool Loaded() const override { return loaded_; }
  void Show() override;
  /// `HostError` 5 if the form is already modal. An error of a handler during the wait ends it, hides the
  /// form and is thrown to the caller.
  void ShowModal(const std::shared_ptr<platform::IForm>& owner) override;
  void Hide() override;
  void Unload() override;

  bool Active() const override;
  bool Topmost() const override { return topmost_; }
  void SetTopmost(bool topmost) override;
  bool KeyPreview() const override { return keyPreview_; }
  void SetKeyPreview(bool preview) override { keyPreview_ = preview; }

  platform::Event<>& Activated() override { return activated_; }
  platform::Event<>& GotFocus() override { return gotFocus_; }
  platform::Event<int, int>& KeyDown() override { return keyDown_; }
  platform::Event<bool&>& CloseRequested() override { return closeRequested_; }
  platform::Event<>& Unloading() override { return unloading_; }

  void Activate() override;
  /// After the preview the control with the focus gets the key. With Alt (shift bit 4) it clicks the button
  /// with that access key.
  void PressKey(int key, int shift) override;
  /// Previews a key that reaches the control by other means; returns whether the form still accepts input.
  bool PreviewKey(int key, int shift);
  void Close() override;
  void Resize(platform::Size inner) override;

  std::shared_ptr<Form> TopForm() override;
  bool AcceptsInput() override;
  void FocusArrived() override { gotFocus_.Raise(); }
  void InnerSizeChanged() override {}

  std::uint64_t ShowOrder() const { return showOrder_; }
  /// Called after the form has become the active one.
  void BecomeActive();
  /// The control that has the focus while the form is active.
  std::shared_ptr<Control> FocusTarget();
  void FocusOn(const std::shared_ptr<Control>& control);
  /// Moves the focus away from a control that can no longer have it.
  void MoveFocusOn();

 protected:
  void NaturalSizeChanged() override;

 private:
  std::shared_ptr<Form> SelfForm() { return std::static_pointer_cast<Form>(shared_from_this()); }
  void BecomeVisible();
  void RunModal();
  void ClickAccessKey(int key);

  bool loaded_ = false;
  bool unloadingNow_ = false;
  bool sizedByHand_ = false;
  bool topmost_ = false;
  bool keyPreview_ = false;
  std::uint64_t showOrder_ = 0;
  int hidden_ = 0;
  std::weak_ptr<Form> owner_;
  std::weak_ptr<Control> focus_;
  platform::Event<> activated_;
  platform::Event<> gotFocus_;
  platform::Event<int, int> keyDown_;
  platform::Event<bool&> closeRequested_;
  platform::Event<> unloading_;
};

}  // namespace toolkit::headless
