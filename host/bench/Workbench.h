#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IPlugIn.h"
#include "host/document/Host.h"
#include "host/run/LeadCalibrationGuard.h"
#include "host/serial/PortManager.h"
#include "toolkit/headless/Application.h"

namespace host::bench {

/// The options of every command.
struct GlobalOptions {
  std::string state;
  std::string catalogue;
  std::string language;
  std::int32_t wait = 0;  ///< seconds in total for files and ports that another program uses
};

/// The host without a screen, with its serial library and the plug-in opened.
class Workbench {
 public:
  /// Whether the saved settings must be readable. Commands that only show documents work without them; a run
  /// does not, because they hold the resistance of the test leads.
  enum class Settings { kNeeded, kIfReadable };

  /// @param timeScale how many times faster than the wall all pauses and time-outs pass
  /// @throws HostError when the settings are needed and cannot be read
  explicit Workbench(const GlobalOptions& options, double timeScale = 1.0,
                     Settings settings = Settings::kNeeded);
  Workbench(const GlobalOptions& options, Settings settings) : Workbench(options, 1.0, settings) {}
  Workbench(const Workbench&) = delete;
  Workbench& operator=(const Workbench&) = delete;
  ~Workbench();

  const std::shared_ptr<toolkit::headless::Application>& Application() const { return application_; }
  const std::shared_ptr<document::Host>& Host() const { return host_; }
  serial::PortManager& Ports() { return *ports_; }
  /// Guards every calibration of the test leads.
  run::LeadCalibrationGuard& Leads() { return *leads_; }
  orvik::IPlugIn& PlugIn() { return *plugIn_; }
  double TimeScale() const { return timeScale_; }

 private:
  void ProvideCatalogue(Settings settings);
  bool HasOwnCatalogue(Settings settings) const;

  const double timeScale_;
  const std::shared_ptr<toolkit::headless::Application> application_;
  const std::shared_ptr<serial::PortManager> ports_;
  std::shared_ptr<document::Host> host_;
  std::unique_ptr<run::LeadCalibrationGuard> leads_;
  std::shared_ptr<orvik::IPlugIn> plugIn_;
};

}  // namespace host::bench
