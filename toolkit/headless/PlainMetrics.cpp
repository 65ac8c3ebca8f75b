#include "toolkit/headless/PlainMetrics.h"

#include "toolkit/headless/TextSize.h"

namespace toolkit::headless {

platform::Size PlainMetrics::Line(std::string_view caption) const { return LineSize(caption); }

platform::Size PlainMetrics::Wrapped(std::string_view text) const { return WrappedSize(text); }

platform::Size PlainMetrics::Character() const { return {kCharacterWidth, kLineHeight}; }

platform::Size PlainMetrics::Padding(Part part) const {
  switch (part) {
    case Part::kButton:
      return {4 * kCharacterWidth, 120};
    case Part::kTextBox:
      return {0, 60};
    case Part::kComboBox:
      return {4 * kCharacterWidth, 60};
    case Part::kFrame:
      return {4 * kCharacterWidth, kLineHeight};
    case Part::kTabCaption:
      return {3 * kCharacterWidth, 120};
    case Part::kToolButton:
      return {3 * kCharacterWidth, 150};
    case Part::kTreeNode:
      return {4 * kCharacterWidth, 0};
    case Part::kListRow:
      break;
  }
  return {};
}

}  // namespace toolkit::headless
