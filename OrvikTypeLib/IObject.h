#pragma once

#include <memory>
#include <string>

namespace orvik {

/// The root of every object that host and plug-in hand to each other.
///
/// Objects live in `std::shared_ptr` and are released with the last reference; a reference back to an owner
/// is a `std::weak_ptr`. `As<Interface>(object)` gives another interface of an object.
///
/// Implemented by: the host and the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class IObject : public std::enable_shared_from_this<IObject> {
 public:
  IObject() = default;
  IObject(const IObject&) = delete;
  IObject& operator=(const IObject&) = delete;
  virtual ~IObject() = default;

  /// The identifier under which the object's class is registered, or empty for classes that are never
  /// created by identifier.
  std::string ClassID() const { return IObject_ClassID(); }

 private:
  virtual std::string IObject_ClassID() const { return {}; }
};

}  // namespace orvik
