#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IPlugIn.h"
#include "host/document/Host.h"
#include "host/run/LeadCalibrationGuard.h"
#include "host/serial/PortManager.h"
#include "toolkit/headless/Application.h"

namespace bench {

/// The options that go with every command.
struct GlobalOptions {
  std::string state;
  std::string catalogue;
  std::string language;
  std::int32_t wait = 0;  ///< seconds in all for what another program holds
};

/// The host without a screen, with its serial library and the plug-in opened.
class Workbench {
 public:
  /// Whether the saved settings must be readable. What only looks at documents does without them; a run does
  /// not, since the resistance of the test leads is among them.
  enum class Settings { kNeeded, kIfReadable };

  /// @param timeScale how many times faster than the wall all pauses and time-outs pass
  /// @throws HostError when the settings are needed and cannot be read
  explicit Workbench(const GlobalOptions& options, double timeScale = 1.0,
                     Settings settings = Settings::kNeeded);
  Workbench(const GlobalOptions& options, Settings settings) : Workbench(options, 1.0, settings) {}
  Workbench(const Workbench&) = delete;
  Workbench& operator=(const Workbench&) = delete;
  ~Workbench();

  const std::shared_ptr<headless::Application>& Application() const { return application_; }
  const std::shared_ptr<bench::Host>& Host() const { return host_; }
  PortManager& Ports() { return *ports_; }
  /// Guards the calibration of the test leads, whoever opens it.
  LeadCalibrationGuard& Leads() { return *leads_; }
  orvik::IPlugIn& PlugIn() { return *plugIn_; }
  double TimeScale() const { return timeScale_; }

 private:
  void ProvideCatalogue(Settings settings);
  bool HasOwnCatalogue(Settings settings) const;

  const double timeScale_;
  const std::shared_ptr<headless::Application> application_;
  const std::shared_ptr<PortManager> ports_;
  std::shared_ptr<bench::Host> host_;
  std::unique_ptr<LeadCalibrationGuard> leads_;
  std::shared_ptr<orvik::IPlugIn> plugIn_;
};

}  // namespace bench
