#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IPortManager.h"
#include "host/serial/ITransport.h"
#include "host/serial/LineSettings.h"
#include "host/serial/Wire.h"
#include "toolkit/loop/ILoop.h"

namespace host::serial {

/// Assigns ports, each with a serial device, to instruments.
class PortManager final : public orvik::IPortManager {
 public:
  /// Opens the device; `HostError` with the reason if that fails.
  using Opener =
      std::function<std::unique_ptr<ITransport>(const std::string& device, const LineSettings& settings)>;

  PortManager(std::shared_ptr<toolkit::loop::ILoop> loop, Opener opener);

  /// Assigns the device to an instrument; ports are numbered from 1 in the order of their first assignment.
  void Assign(const std::string& instrument, const std::string& device);
  /// Removes the instrument's device.
  void Unassign(const std::string& instrument);

  /// Reports what happens on the wire of all ports.
  const std::shared_ptr<Wire>& TheWire() const { return wire_; }
  /// Why the last opening failed; empty after a success. Callers of the interface may ignore the error.
  const std::string& LastError() const { return lastError_; }

 private:
  struct Assignment {
    std::string instrument;
    std::string device;  ///< empty after `Unassign`
  };

  std::int32_t IPortManager_FindPort(const std::string& sDevice) const override;
  std::shared_ptr<orvik::IPort> IPortManager_OpenPort(std::int32_t lPort,
                                                      const std::string& sSettings) override;
  std::shared_ptr<orvik::IPort> Open(std::int32_t lPort, const std::string& sSettings);

  const std::shared_ptr<toolkit::loop::ILoop> loop_;
  const Opener opener_;
  const std::shared_ptr<Wire> wire_ = std::make_shared<Wire>();
  std::vector<Assignment> ports_;  ///< by port number, from 1
  std::string lastError_;
};

/// Opens real serial devices.
PortManager::Opener DeviceOpener(std::shared_ptr<toolkit::loop::ILoop> loop);

}  // namespace host::serial
