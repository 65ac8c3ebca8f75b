#pragma once

#include <memory>

namespace keld::ui {

/// Returns a handler that calls the method while the object exists, and keeps the object alive during the
/// call: the method may cause its release.
template <class Object, class... Args>
auto WhileAlive(const std::shared_ptr<Object>& Target, void (Object::*pMethod)(Args...)) {
  return [Weak = std::weak_ptr<Object>(Target), pMethod](Args... args) {
    if (const auto Alive = Weak.lock()) (Alive.get()->*pMethod)(args...);
  };
}

}  // namespace keld::ui
