#pragma once

#include <memory>

#include "OrvikTypeLib/HostError.h"

namespace orvik {

/// The object under another of its interfaces; empty if the object is empty or lacks the interface.
template <class Interface, class Object>
[[nodiscard]] std::shared_ptr<Interface> As(const std::shared_ptr<Object>& object) {
  return std::dynamic_pointer_cast<Interface>(object);
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
