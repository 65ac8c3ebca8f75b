#include "toolkit/headless/Toolbar.h"

#include <algorithm>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/headless/IMetrics.h"

namespace toolkit::headless {

void Toolbar::AddButton(int command, const std::string& caption) {
  Item item;
  item.command = command;
  item.caption = caption;
  Add(std::move(item));
}

void Toolbar::AddEntry(int parent, int command, const std::string& caption) {
  const Item* button = Find(parent);
  if (!button || button->isEntry) return;
  Item item;
  item.command = command;
  item.parent = parent;
  item.caption = caption;
  item.isEntry = true;
  Add(std::move(item));
}

void Toolbar::Add(Item item) {
  if (Find(item.command))
    Fail(orvik::HostError::kInvalidArgument,
         "toolbar \"" + Name() + "\" already has a command " + std::to_string(item.command));
  Apply([&] { items_.push_back(std::move(item)); });
}

std::vector<int> Toolbar::Commands() const {
  std::vector<int> commands;
  for (const Item& item : items_) commands.push_back(item.command);
  return commands;
}

std::string Toolbar::CommandCaption(int command) const {
  const Item* item = Find(command);
  return item ? item->caption : "";
}

void Toolbar::SetCommandToolTip(int command, const std::string& text) {
  if (Item* item = Find(command)) Apply([&] { item->toolTip = text; });
}

int Toolbar::CommandParent(int command) const {
  const Item* item = Find(command);
  return item ? item->parent : 0;
}

std::string Toolbar::CommandToolTip(int command) const {
  const Item* item = Find(command);
  return item ? item->toolTip : "";
}

bool Toolbar::CommandEnabled(int command) const {
  const Item* item = Find(command);
  return item && item->enabled;
}

void Toolbar::EnableCommand(int command, bool enabled) {
  if (Item* item = Find(command)) Apply([&] { item->enabled = enabled; });
}

bool Toolbar::CommandVisible(int command) const {
  const Item* item = Find(command);
  return item && item->visible;
}

void Toolbar::ShowCommand(int command, bool visible) {
  if (Item* item = Find(command)) Apply([&] { item->visible = visible; });
}

void Toolbar::Click(int command) {
  const auto self = shared_from_this();
  if (!BeginAction()) return;
  const Item* item = Find(command);
  if (item && CanChoose(*item) && !HasEntries(command)) commandChosen_.Raise(command);
}

platform::Size Toolbar::NaturalSize() const {
  const platform::Size padding = Metrics().Padding(Part::kToolButton);
  platform::Twips width = 0;
  for (const Item& item : items_) {
    if (item.visible && !item.isEntry) width += Metrics().Line(item.caption).width + padding.width;
  }
  return {width, Metrics().Character().height + padding.height};
}

const Toolbar::Item* Toolbar::Find(int command) const {
  const auto found = std::find_if(items_.begin(), items_.end(),
                                  [command](const Item& item) { return item.command == command; });
  return found == items_.end() ? nullptr : &*found;
}

Toolbar::Item* Toolbar::Find(int command) { return const_cast<Item*>(std::as_const(*this).Find(command)); }

bool Toolbar::HasEntries(int command) const {
  return std::any_of(items_.begin(), items_.end(),
                     [command](const Item& item) { return item.isEntry && item.parent == command; });
}

bool Toolbar::CanChoose(const Item& item) const {
  if (!item.enabled || !item.visible) return false;
  const Item* button = item.isEntry ? Find(item.parent) : nullptr;
  return !button || (button->enabled && button->visible);
}

}  // namespace toolkit::headless
