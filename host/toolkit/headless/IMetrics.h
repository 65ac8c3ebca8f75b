#pragma once

#include <string_view>

#include "platform/Types.h"

namespace bench::headless {

namespace platform = orvik::platform;

/// What stands padding texts.
enum class Part { kButton, kTextBox, kComboBox, kFrame, kTabCaption, kToolButton, kTreeNode, kListRow };

/// How large texts are and what stands padding them, in twips. The layout goes by it.
class IMetrics {
 public:
  IMetrics() = default;
  IMetrics(const IMetrics&) = delete;
  IMetrics& operator=(const IMetrics&) = delete;
  virtual ~IMetrics() = default;

  /// A caption on one line, without the mark of its access key.
  virtual platform::Size Line(std::string_view caption) const = 0;
  /// A text that is broken into lines of at most 60 characters.
  virtual platform::Size Wrapped(std::string_view text) const = 0;
  /// A character of middling width, and a line.
  virtual platform::Size Character() const = 0;
  /// What the part needs beyond its text, both sides together.
  virtual platform::Size Padding(Part part) const = 0;
};

}  // namespace bench::headless
