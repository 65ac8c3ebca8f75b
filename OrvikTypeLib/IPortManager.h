#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IPort;

/// Finds and opens the port of a device.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IPortManager : public virtual IObject {
 public:
  /// The number of the port assigned to the device name; less than 1 when none is.
  std::int32_t FindPort(const std::string& sDevice) const { return IPortManager_FindPort(sDevice); }
  /// Opens a port with settings such as "9600,O,8,1" (rate, parity N E O M S, data bits, stop bits).
  /// `HostError` with the reason when that fails.
  std::shared_ptr<IPort> OpenPort(std::int32_t lPort, const std::string& sSettings) {
    return IPortManager_OpenPort(lPort, sSettings);
  }

 private:
  virtual std::int32_t IPortManager_FindPort(const std::string& sDevice) const = 0;
  virtual std::shared_ptr<IPort> IPortManager_OpenPort(std::int32_t lPort, const std::string& sSettings) = 0;
};

}  // namespace orvik
