#pragma once

#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IPlugIn.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/serial/CommApplication.h"
#include "plugin/base/ClassIdentifiers.h"
#include "tester/BuiltInProfiles.h"
#include "tests/support/HostOnly.h"
#include "tests/support/SimulatedLine.h"
#include "tests/support/WireLines.h"

namespace support {

/// The text of the shipped catalogue.
inline std::string ShippedCatalogue() {
  std::ifstream file(CATALOGUE_PATH);
  if (!file) throw std::runtime_error("the catalogue cannot be read: " CATALOGUE_PATH);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

/// A whole test bench on the virtual clock: the real host with the headless toolkit, its serial library, and
/// the simulated tester at the other end of a line in memory. The plug-in's classes are linked in and opened.
///
///     VirtualBench bench;                                  // a sound piece of class I equipment
///     bench.Line().AnswerBy([&](const std::string& command) { bench.Line().Reply("ERRM,6002"); });
///     ... run something ...
///     EXPECT_EQ(bench.Wire().Sent(), ...);
class VirtualBench {
 public:
  struct Settings {
    std::string profile{sim::kDefaultProfile};
    std::optional<std::string> catalogue = ShippedCatalogue();
    bool assigned = true;  ///< whether the tester's port is known to the host
  };

  static constexpr char kDevice[] = "memory";

  VirtualBench() : VirtualBench(Settings{}) {}
  explicit VirtualBench(Settings settings)
      : host_(settings.catalogue), line_(host_.SharedApplication(), Profile(settings.profile)) {
    host_.Host().Register(orvik::HostClasses::kCommApplication, [this] { return comm_; });
    if (settings.assigned) Assign();
  }

  host::document::Host& Host() { return host_.Host(); }
  HostOnly& Only() { return host_; }
  toolkit::headless::Application& Application() { return host_.Application(); }
  host::serial::PortManager& Ports() { return *manager_; }
  SimulatedLine& Line() { return line_; }
  sim::Tester& Tester() { return line_.Tester(); }
  /// Everything on the wire, with virtual times.
  WireLines& Wire() { return wire_; }

  /// Gives the tester its port, or takes it away.
  void Assign() { manager_->Assign(keld::MKELDConstants::kPlugInID, kDevice); }
  void Unassign() { manager_->Unassign(keld::MKELDConstants::kPlugInID); }

  /// The plug-in object, initialised.
  std::shared_ptr<orvik::IPlugIn> PlugIn() {
    if (!plugIn_) {
      plugIn_ = orvik::As<orvik::IPlugIn>(host_.Host().CreateObject(keld::ClassIdentifiers::kPlugin));
      plugIn_->Initialize(nullptr);
    }
    return plugIn_;
  }

  /// A new element of the catalogue's test.
  std::shared_ptr<orvik::ITestElement> CreateTest(std::int32_t testId) {
    auto created = PlugIn()->CreateTest(testId);
    if (!created) throw std::runtime_error("the catalogue has no test " + std::to_string(testId));
    return created;
  }

 private:
  static sim::Profile Profile(const std::string& name) {
    auto profile = sim::MakeBuiltInProfile(name);
    if (!profile) throw std::runtime_error("no built-in profile " + name);
    return *std::move(profile);
  }

  HostOnly host_;
  SimulatedLine line_;
  std::shared_ptr<host::serial::PortManager> manager_ = std::make_shared<host::serial::PortManager>(
      host_.SharedApplication(), [this](const std::string&, const host::serial::LineSettings&) {
        return std::make_unique<host::serial::MemoryTransport>(line_.Line());
      });
  std::shared_ptr<host::serial::CommApplication> comm_ =
      std::make_shared<host::serial::CommApplication>(manager_);
  WireLines wire_{*manager_->TheWire()};
  std::shared_ptr<orvik::IPlugIn> plugIn_;
};

}  // namespace support
