#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/Types.h"

namespace toolkit::headless {

namespace platform = orvik::platform;

class Control;

/// All windows by handle, and their nesting. Does not own them.
class WindowTable {
 public:
  /// A new handle; never 0.
  platform::WindowHandle NextHandle() { return ++lastHandle_; }
  void Add(const std::shared_ptr<Control>& window);
  void Remove(platform::WindowHandle handle) { windows_.erase(handle); }
  /// The window, or empty if it was destroyed.
  std::shared_ptr<Control> Find(platform::WindowHandle handle) const;
  /// All windows, and those inside one, in the order of their creation.
  std::vector<std::shared_ptr<Control>> All() const;
  std::vector<std::shared_ptr<Control>> Inside(const Control& parent) const;

  /// Makes one window the child of another; parent 0 removes it from its parent. A site and the panel inside
  /// it are one window: either handle moves both. `HostError` 5 for an invalid handle, a child that is
  /// neither panel nor site, or a parent inside the child.
  void SetParent(platform::WindowHandle child, platform::WindowHandle parent);
  platform::WindowHandle Parent(platform::WindowHandle child) const;

 private:
  std::shared_ptr<Control> Movable(platform::WindowHandle handle) const;

  platform::WindowHandle lastHandle_ = 0;
  std::unordered_map<platform::WindowHandle, std::weak_ptr<Control>> windows_;
};

}  // namespace toolkit::headless
