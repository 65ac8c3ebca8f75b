#pragma once

#include <string>
#include <vector>

#include "platform/Controls.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

/// A box that is not editable ignores a text that is not one of its entries.
class ComboBox final : public Control, public virtual platform::IComboBox {
 public:
  ComboBox(std::shared_ptr<Desktop> desktop, std::string name);

  std::vector<std::string> Items() const override { return items_; }
  void AddItem(const std::string& text) override;
  /// Ends the selection; a typed text stays.
  void ClearItems() override;
  int SelectedIndex() const override { return selected_; }
  void SetSelectedIndex(int index) override;
  std::string Text() const override { return text_; }
  /// Selects the entry of that text; in an editable box any other text ends the selection.
  void SetText(const std::string& text) override;
  bool Editable() const override { return editable_; }
  void SetEditable(bool editable) override;
  platform::Event<>& Selected() override { return selectedEvent_; }
  platform::Event<>& LostFocus() override { return lostFocus_; }
  void Choose(int index) override;
  void TypeOver(const std::string& text) override;

  platform::Size NaturalSize() const override;
  bool CanFocus() const override { return true; }
  void FocusLeft() override { lostFocus_.Raise(); }

 private:
  void Select(int index, const std::string& text);

  std::vector<std::string> items_;
  int selected_ = -1;
  std::string text_;
  bool editable_ = true;
  platform::Event<> selectedEvent_;
  platform::Event<> lostFocus_;
};

}  // namespace toolkit::headless
