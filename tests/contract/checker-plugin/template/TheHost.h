#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IHost.h"
#include "OrvikTypeLib/IObject.h"

// The plug-in reaches everything through the host that opened its library. Nothing else is
// kept for the whole process, so that closing the library leaves nothing behind.
namespace check {

/// Keeps the host from `OrvikOpenLibrary` on; empty releases it.
void SetHost(std::shared_ptr<orvik::IHost> host);

/// The host; `HostError` 91 while the library is closed.
orvik::IHost& TheHost();

/// A new object of a host class, in the view that is needed; `HostError` when the host has no such class or
/// the object no such view.
///
///     const auto log = NewHostObject<orvik::IErrorLog>(orvik::HostClasses::kErrorLog);
template <class Interface>
std::shared_ptr<Interface> NewHostObject(const std::string& classId) {
  auto object = orvik::As<Interface>(TheHost().CreateObject(classId));
  if (!object)
    throw orvik::HostError(orvik::HostError::kTypeMismatch, "CHECK",
                           "the host's class \"" + classId + "\" does not have the view that is needed");
  return object;
}

/// A text as people read it. Texts are written "number::English default"; numbers from 20000 up are the
/// plug-in's own, and each plug-in has a module name of its own.
std::string Translated(const std::string& text, const std::vector<std::string>& values = {});

}  // namespace check
