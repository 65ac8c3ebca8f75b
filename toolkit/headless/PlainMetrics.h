#pragma once

#include "toolkit/headless/IMetrics.h"

namespace toolkit::headless {

/// The sizes without a screen: all characters have the same width (`TextSize.h`).
class PlainMetrics final : public IMetrics {
 public:
  platform::Size Line(std::string_view caption) const override;
  platform::Size Wrapped(std::string_view text) const override;
  platform::Size Character() const override;
  platform::Size Padding(Part part) const override;
};

}  // namespace toolkit::headless
