#include "host/toolkit/headless/TextBox.h"

#include "host/toolkit/headless/TextSize.h"

namespace bench::headless {

void TextBox::SetText(const std::string& text) {
  if (text == text_) return;
  const auto self = shared_from_this();
  text_ = text;
  changed_.Raise();
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
  return multiLine_ ? platform::Size{40 * kCharacterWidth, 5 * kLineHeight}
                    : platform::Size{20 * kCharacterWidth, kLineHeight + 60};
}

void TextBox::KeyPressed(int key, int shift) {
  const bool letter = key >= 'A' && key <= 'Z';
  if (!letter && !(key >= '0' && key <= '9') && key != platform::kKeySpace) return;
  const int typed = letter && (shift & 1) == 0 ? key - 'A' + 'a' : key;
  Type(std::string(1, static_cast<char>(typed)));
}

}  // namespace bench::headless
