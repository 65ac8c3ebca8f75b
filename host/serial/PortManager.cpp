#include "host/serial/PortManager.h"

#include <algorithm>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"
#include "host/serial/DeviceTransport.h"
#include "host/serial/Port.h"

namespace host::serial {

using orvik::HostError;

PortManager::PortManager(std::shared_ptr<toolkit::loop::ILoop> loop, Opener opener)
    : loop_(std::move(loop)), opener_(std::move(opener)) {}

void PortManager::Assign(const std::string& instrument, const std::string& device) {
  const auto known = std::find_if(ports_.begin(), ports_.end(),
                                  [&](const Assignment& port) { return port.instrument == instrument; });
  if (known == ports_.end())
    ports_.push_back({instrument, device});
  else
    known->device = device;
}

void PortManager::Unassign(const std::string& instrument) {
  for (auto& port : ports_) {
    if (port.instrument == instrument) port.device.clear();
  }
}

std::int32_t PortManager::IPortManager_FindPort(const std::string& sDevice) const {
  for (std::size_t i = 0; i < ports_.size(); ++i) {
    if (ports_[i].instrument == sDevice && !ports_[i].device.empty()) return static_cast<std::int32_t>(i + 1);
  }
  return 0;
}

std::shared_ptr<orvik::IPort> PortManager::IPortManager_OpenPort(std::int32_t lPort,
                                                                 const std::string& sSettings) {
  try {
    auto port = Open(lPort, sSettings);
    lastError_.clear();
    return port;
  } catch (const HostError& error) {
    lastError_ = error.Description();
    throw;
  }
}

std::shared_ptr<orvik::IPort> PortManager::Open(std::int32_t lPort, const std::string& sSettings) {
  if (lPort < 1 || static_cast<std::size_t>(lPort) > ports_.size() ||
      ports_[static_cast<std::size_t>(lPort - 1)].device.empty())
    throw HostError(HostError::kInvalidArgument, "OrvikComm.PortManager",
                    Tr("port %%1 is not assigned to an instrument", {std::to_string(lPort)}));
  const auto& device = ports_[static_cast<std::size_t>(lPort - 1)].device;
  auto transport = opener_(device, ParseLineSettings(sSettings));
  return Port::Create(std::move(transport), loop_, wire_, device + " " + sSettings);
}

PortManager::Opener DeviceOpener(std::shared_ptr<toolkit::loop::ILoop> loop) {
  return [loop = std::move(loop)](const std::string& device, const LineSettings& settings) {
    return std::make_unique<DeviceTransport>(device, settings, loop);
  };
}

}  // namespace host::serial
