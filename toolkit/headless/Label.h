#pragma once

#include "platform/Controls.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

class Label final : public Control, public virtual platform::ILabel {
 public:
  using Control::Control;
  platform::Size NaturalSize() const override;
};

class Frame final : public Control, public virtual platform::IFrame {
 public:
  using Control::Control;
  platform::Size NaturalSize() const override;
};

}  // namespace toolkit::headless
