#pragma once

#include "platform/Controls.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

class Button final : public Control, public virtual platform::IButton {
 public:
  using Control::Control;

  platform::Event<>& Clicked() override { return clicked_; }
  void Click() override;

  platform::Size NaturalSize() const override;
  bool CanFocus() const override { return true; }
  /// Return and space click the button that has the focus.
  void KeyPressed(int key, int shift) override;

 private:
  platform::Event<> clicked_;
};

}  // namespace toolkit::headless
