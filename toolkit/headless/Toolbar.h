#pragma once

#include <string>
#include <vector>

#include "platform/Controls.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

/// Buttons and menu entries under them. Unknown commands are ignored, and are neither enabled nor visible.
class Toolbar final : public Control, public virtual platform::IToolbar {
 public:
  using Control::Control;

  /// `HostError` 5 for a command that already exists, as for `AddEntry`.
  void AddButton(int command, const std::string& caption) override;
  void AddEntry(int parent, int command, const std::string& caption) override;
  std::vector<int> Commands() const override;
  std::string CommandCaption(int command) const override;
  void SetCommandToolTip(int command, const std::string& text) override;
  bool CommandEnabled(int command) const override;
  void EnableCommand(int command, bool enabled) override;
  bool CommandVisible(int command) const override;
  void ShowCommand(int command, bool visible) override;
  platform::Event<int>& CommandChosen() override { return commandChosen_; }
  /// For an entry, its button must be enabled and visible too. A button with entries only opens its menu.
  void Click(int command) override;

  /// The button above an entry, 0 for a button.
  int CommandParent(int command) const;
  /// The tool tip of a button, or empty.
  std::string CommandToolTip(int command) const;
  platform::Size NaturalSize() const override;

 private:
  struct Item {
    int command = 0;
    int parent = 0;
    std::string caption;
    std::string toolTip;
    bool enabled = true;
    bool visible = true;
    bool isEntry = false;
  };

  void Add(Item item);
  const Item* Find(int command) const;
  Item* Find(int command);
  bool HasEntries(int command) const;
  bool CanChoose(const Item& item) const;

  std::vector<Item> items_;
  platform::Event<int> commandChosen_;
};

}  // namespace toolkit::headless
