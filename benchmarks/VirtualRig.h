#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "OrvikTypeLib/HostClasses.h"
#include "host/serial/CommApplication.h"
#include "host/serial/MemoryTransport.h"
#include "host/serial/PortManager.h"
#include "tester/BuiltInProfiles.h"
#include "tests/support/HostOnly.h"
#include "tests/support/SimulatedLine.h"

namespace benchmarks {

/// The headless host on the virtual clock, with the simulated tester on a line in memory and no listener.
class VirtualRig {
 public:
  explicit VirtualRig(std::optional<std::string> catalogue = {})
      : host_(std::move(catalogue)), line_(host_.SharedApplication(), Sound()) {
    host_.Host().Register(orvik::HostClasses::kCommApplication, [this] { return comm_; });
    ports_->Assign(keld::MKELDConstants::kPlugInID, "memory");
  }

  support::HostOnly& Only() { return host_; }
  host::serial::PortManager& Ports() { return *ports_; }
  sim::Tester& Tester() { return line_.Tester(); }

 private:
  static sim::Profile Sound() {
    auto profile = sim::MakeBuiltInProfile(sim::kDefaultProfile);
    if (!profile) throw std::runtime_error("the simulated tester has no built-in profile");
    return *std::move(profile);
  }

  support::HostOnly host_;
  support::SimulatedLine line_;
  std::shared_ptr<host::serial::PortManager> ports_ = std::make_shared<host::serial::PortManager>(
      host_.SharedApplication(), [this](const std::string&, const host::serial::LineSettings&) {
        return std::make_unique<host::serial::MemoryTransport>(line_.Line());
      });
  std::shared_ptr<host::serial::CommApplication> comm_ =
      std::make_shared<host::serial::CommApplication>(ports_);
};

}  // namespace benchmarks
