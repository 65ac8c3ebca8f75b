#pragma once

#include <string_view>

#include "platform/Types.h"

namespace toolkit::headless {

namespace platform = orvik::platform;

/// What has padding around its text.
enum class Part { kButton, kTextBox, kComboBox, kFrame, kTabCaption, kToolButton, kTreeNode, kListRow };

/// Sizes of texts and of the padding around them, in twips, for the layout.
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
  /// The average width of a character and the height of a line.
  virtual platform::Size Character() const = 0;
  /// What the part needs in addition to its text, both sides together.
  virtual platform::Size Padding(Part part) const = 0;
};

}  // namespace toolkit::headless
