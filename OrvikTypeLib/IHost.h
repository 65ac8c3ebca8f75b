#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"

namespace orvik::platform {
class IApplication;
}

namespace orvik {

/// The host, as a plug-in sees it when its library is opened.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IHost : public virtual IObject {
 public:
  /// A new object of a host class, for example "OrvikTypeLib.TestElement"; `HostError` 429 for a class that
  /// is not registered.
  std::shared_ptr<IObject> CreateObject(const std::string& sClassID) { return IHost_CreateObject(sClassID); }
  /// The platform: windows, message pump, timers, clock.
  std::shared_ptr<platform::IApplication> Application() const { return IHost_Application(); }

 private:
  virtual std::shared_ptr<IObject> IHost_CreateObject(const std::string& sClassID) = 0;
  virtual std::shared_ptr<platform::IApplication> IHost_Application() const = 0;
};

}  // namespace orvik
