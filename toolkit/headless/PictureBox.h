#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/Controls.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

class PictureBox final : public Control, public virtual platform::IPictureBox {
 public:
  using Control::Control;

  void SetBitmap(std::span<const std::byte> bitmap) override;
  std::vector<std::byte> Bitmap() const override { return bitmap_; }

  /// The size in the bitmap's header; 0 by 0 for bytes that are not a bitmap.
  platform::Size NaturalSize() const override;

 private:
  std::vector<std::byte> bitmap_;
};

}  // namespace toolkit::headless
