#pragma once

#include <functional>
#include <memory>

namespace toolkit::headless {
class Application;
}

namespace support {

/// Shows the windows of an application until it is destroyed. Empty in most test programs; those whose name
/// ends in "-qt" run the same tests with every window on a screen, too.
using ScreenMaker =
    std::function<std::shared_ptr<void>(const std::shared_ptr<toolkit::headless::Application>&)>;

inline ScreenMaker& TheScreenMaker() {
  static ScreenMaker maker;
  return maker;
}

inline std::shared_ptr<void> OnScreen(const std::shared_ptr<toolkit::headless::Application>& application) {
  return TheScreenMaker() ? TheScreenMaker()(application) : nullptr;
}

}  // namespace support
