#include "host/toolkit/headless/Label.h"

#include "host/toolkit/headless/IMetrics.h"

namespace bench::headless {

platform::Size Label::NaturalSize() const { return Metrics().Wrapped(Caption()); }

platform::Size Frame::NaturalSize() const {
  const platform::Size caption = Metrics().Line(Caption());
  // Room for the border and for one line inside.
  const platform::Size around = Metrics().Around(Part::kFrame);
  return {caption.width + around.width, caption.height + around.height};
}

}  // namespace bench::headless
