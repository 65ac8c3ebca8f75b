#pragma once

#include <memory>

namespace keld {

/// A handler that calls the method on its object as long as somebody holds it, and keeps it alive meanwhile:
/// whoever is told may release it from inside the call.
template <class Object, class... Args>
auto WhileAlive(const std::shared_ptr<Object>& Target, void (Object::*pMethod)(Args...)) {
  return [Weak = std::weak_ptr<Object>(Target), pMethod](Args... args) {
    if (const auto Alive = Weak.lock()) (Alive.get()->*pMethod)(args...);
  };
}

}  // namespace keld
