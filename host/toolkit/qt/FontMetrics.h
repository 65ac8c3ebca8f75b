#pragma once

#include "host/toolkit/headless/IMetrics.h"
#include "host/toolkit/qt/Units.h"

namespace bench::qt {

/// Sizes of the screen's font, and of what its style puts around texts.
class FontMetrics final : public headless::IMetrics {
 public:
  orvik::platform::Size Line(std::string_view caption) const override;
  orvik::platform::Size Wrapped(std::string_view text) const override;
  orvik::platform::Size Character() const override;
  orvik::platform::Size Around(headless::Part part) const override;

 private:
  Units units_;
};

}  // namespace bench::qt
