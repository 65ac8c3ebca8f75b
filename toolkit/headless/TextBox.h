#pragma once

#include <string>

#include "platform/Controls.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

class TextBox final : public Control, public virtual platform::ITextBox {
 public:
  TextBox(std::shared_ptr<Desktop> desktop, std::string name);

  std::string Text() const override { return text_; }
  void SetText(const std::string& text) override;
  bool Locked() const override { return locked_; }
  void SetLocked(bool locked) override;
  bool MultiLine() const override { return multiLine_; }
  void SetMultiLine(bool multiLine) override;
  platform::Event<>& Changed() override { return changed_; }
  void Type(const std::string& text) override;
  void TypeOver(const std::string& text) override;

  platform::Size NaturalSize() const override;
  bool CanFocus() const override { return true; }
  /// Types letters, digits and spaces; letters are lower case without shift.
  void KeyPressed(int key, int shift) override;

 private:
  std::string text_;
  bool locked_ = false;
  bool multiLine_ = false;
  platform::Event<> changed_;
};

}  // namespace toolkit::headless
