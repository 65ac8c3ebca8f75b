#include "toolkit/headless/TextBox.h"

#include <utility>

#include "toolkit/headless/IMetrics.h"

namespace toolkit::headless {

TextBox::TextBox(std::shared_ptr<Desktop> desktop, std::string name)
    : Control(std::move(desktop), std::move(name)) {
  backColor_ = platform::kWindowBackground;
}

void TextBox::SetText(const std::string& text) {
  if (text == text_) return;
  const auto self = shared_from_this();
  text_ = text;
  NotifyChanged();
  changed_.Raise();
}

void TextBox::SetLocked(bool locked) {
  locked_ = locked;
  NotifyChanged();
}

void TextBox::SetMultiLine(bool multiLine) {
  Apply([&] { multiLine_ = multiLine; });
}

void TextBox::Type(const std::string& text) {
  const auto self = shared_from_this();
  if (BeginAction() && !locked_) SetText(text_ + text);
}

void TextBox::TypeOver(const std::string& text) {
  const auto self = shared_from_this();
  if (BeginAction() && !locked_) SetText(text);
}

platform::Size TextBox::NaturalSize() const {
  const platform::Size character = Metrics().Character();
  const platform::Size padding = Metrics().Padding(Part::kTextBox);
  return multiLine_ ? platform::Size{40 * character.width, 5 * character.height}
                    : platform::Size{20 * character.width + padding.width, character.height + padding.height};
}

void TextBox::KeyPressed(int key, int shift) {
  const bool letter = key >= 'A' && key <= 'Z';
  if (!letter && !(key >= '0' && key <= '9') && key != platform::kKeySpace) return;
  const int typed = letter && (shift & 1) == 0 ? key - 'A' + 'a' : key;
  Type(std::string(1, static_cast<char>(typed)));
}

}  // namespace toolkit::headless
