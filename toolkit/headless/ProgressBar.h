#pragma once

#include "platform/Controls.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

/// The default range is 0 to 100.
class ProgressBar final : public Control, public virtual platform::IProgressBar {
 public:
  using Control::Control;

  int Minimum() const override { return minimum_; }
  int Maximum() const override { return maximum_; }
  /// `HostError` 5 if the maximum is below the minimum.
  void SetRange(int minimum, int maximum) override;
  int Value() const override { return value_; }
  void SetValue(int value) override;

  platform::Size NaturalSize() const override { return {3000, 300}; }

 private:
  int minimum_ = 0;
  int maximum_ = 100;
  int value_ = 0;
};

}  // namespace toolkit::headless
