#include "toolkit/headless/Label.h"

#include "toolkit/headless/IMetrics.h"

namespace toolkit::headless {

platform::Size Label::NaturalSize() const { return Metrics().Wrapped(Caption()); }

platform::Size Frame::NaturalSize() const {
  const platform::Size caption = Metrics().Line(Caption());
  // Space for the border and one line inside.
  const platform::Size padding = Metrics().Padding(Part::kFrame);
  return {caption.width + padding.width, caption.height + padding.height};
}

}  // namespace toolkit::headless
