#pragma once

#include <string>
#include <vector>

#include "host/toolkit/headless/Control.h"
#include "platform/Controls.h"

namespace bench::headless {

/// Buttons and entries under them. An unknown command changes nothing, and is neither enabled nor visible.
class Toolbar final : public Control, public virtual platform::IToolbar {
 public:
  using Control::Control;

  /// `HostError` 5 for a command that is there already, as for `AddEntry`.
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
  /// An entry needs its button enabled and visible too. A button with entries drops them down and chooses
  /// nothing.
  void Click(int command) override;

  /// The button above an entry, 0 for a button.
  int CommandParent(int command) const;
  /// The tool tip of a button, empty when it has none.
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

}  // namespace bench::headless
