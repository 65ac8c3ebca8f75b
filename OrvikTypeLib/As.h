#pragma once

#include <memory>
#include <type_traits>
#include <typeinfo>

#include "OrvikTypeLib/HostError.h"

namespace orvik {

/// The object under another of its interfaces; empty if the object is empty or lacks the interface.
template <class Interface, class Object>
[[nodiscard]] std::shared_ptr<Interface> As(const std::shared_ptr<Object>& object) {
  if constexpr (std::is_final_v<Interface> && requires(Object * any) { static_cast<Interface*>(any); }) {
    // A final class has no derived classes, so comparing the type is enough.
    const auto* any = object.get();
    if (!any || typeid(*any) != typeid(Interface)) return nullptr;
    return std::static_pointer_cast<Interface>(object);
  } else {
    return std::dynamic_pointer_cast<Interface>(object);
  }
}

/// The object behind a reference that must not be empty. An empty one raises `HostError` 91, so the step
/// that needs it is skipped or reported like any other failing call.
template <class Object>
[[nodiscard]] Object& Required(const std::shared_ptr<Object>& object) {
  if (!object) throw HostError(HostError::kEmptyReference, "OrvikTypeLib", "the object reference is empty");
  return *object;
}

/// The object behind an owner reference, `HostError` 91 if the owner has been released.
template <class Object>
[[nodiscard]] std::shared_ptr<Object> Required(const std::weak_ptr<Object>& object) {
  auto held = object.lock();
  if (!held) throw HostError(HostError::kEmptyReference, "OrvikTypeLib", "the object is gone");
  return held;
}

}  // namespace orvik
