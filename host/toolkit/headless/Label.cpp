#include "host/toolkit/headless/Label.h"

#include "host/toolkit/headless/TextSize.h"

namespace bench::headless {

platform::Size Label::NaturalSize() const { return WrappedSize(Caption()); }

platform::Size Frame::NaturalSize() const {
  const platform::Size caption = LineSize(Caption());
  // Room for the border and for one line inside.
  return {caption.width + 4 * kCharacterWidth, 2 * caption.height};
}

}  // namespace bench::headless
