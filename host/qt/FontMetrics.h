#pragma once

#include <map>

#include "host/qt/Units.h"
#include "toolkit/headless/IMetrics.h"

namespace host::qt {

/// Sizes of the screen's font, and of the padding of its style.
class FontMetrics final : public toolkit::headless::IMetrics {
 public:
  FontMetrics();

  orvik::platform::Size Line(std::string_view caption) const override;
  orvik::platform::Size Wrapped(std::string_view text) const override;
  orvik::platform::Size Character() const override;
  orvik::platform::Size Padding(toolkit::headless::Part part) const override { return padding_.at(part); }

 private:
  Units units_;
  std::map<toolkit::headless::Part, orvik::platform::Size> padding_;
};

}  // namespace host::qt
