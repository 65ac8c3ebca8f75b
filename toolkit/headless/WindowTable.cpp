#include "toolkit/headless/WindowTable.h"

#include <algorithm>
#include <string>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/headless/ContainerSite.h"
#include "toolkit/headless/Form.h"
#include "toolkit/headless/Panel.h"

namespace toolkit::headless {

using orvik::HostError;

void WindowTable::Add(const std::shared_ptr<Control>& window) { windows_[window->Handle()] = window; }

std::shared_ptr<Control> WindowTable::Find(platform::WindowHandle handle) const {
  const auto found = windows_.find(handle);
  return found == windows_.end() ? nullptr : found->second.lock();
}

std::vector<std::shared_ptr<Control>> WindowTable::All() const {
  std::vector<std::shared_ptr<Control>> all;
  for (const auto& entry : windows_) {
    if (auto window = entry.second.lock()) all.push_back(std::move(window));
  }
  std::sort(all.begin(), all.end(), [](const auto& a, const auto& b) { return a->Handle() < b->Handle(); });
  return all;
}

std::vector<std::shared_ptr<Control>> WindowTable::Inside(const Control& parent) const {
  auto inside = All();
  std::erase_if(inside, [&](const auto& window) { return window->ParentWindow().get() != &parent; });
  return inside;
}

void WindowTable::SetParent(platform::WindowHandle child, platform::WindowHandle parent) {
  const auto moved = Movable(child);
  if (!moved || std::dynamic_pointer_cast<Form>(moved))
    Fail(HostError::kInvalidArgument,
         "window " + std::to_string(child) + " is not a panel that can be docked");
  const auto into = Find(parent);
  if (parent != 0 && !into)
    Fail(HostError::kInvalidArgument, "there is no window " + std::to_string(parent) + " to dock into");
  for (auto above = into; above; above = above->ParentWindow()) {
    if (above == moved)
      Fail(HostError::kInvalidArgument, "window " + std::to_string(child) + " cannot be docked into itself");
  }
  moved->SetParentWindow(into);
  if (const auto container = moved->Container()) container->Relayout();
}

platform::WindowHandle WindowTable::Parent(platform::WindowHandle child) const {
  auto window = Movable(child);
  if (!window) window = Find(child);
  const auto parent = window ? window->ParentWindow() : nullptr;
  return parent ? parent->Handle() : 0;
}

std::shared_ptr<Control> WindowTable::Movable(platform::WindowHandle handle) const {
  const auto window = Find(handle);
  if (!window || std::dynamic_pointer_cast<ContainerSite>(window)) return window;
  if (!std::dynamic_pointer_cast<Panel>(window)) return nullptr;
  const auto site = std::dynamic_pointer_cast<ContainerSite>(window->ParentWindow());
  return site ? site : window;
}

}  // namespace toolkit::headless
