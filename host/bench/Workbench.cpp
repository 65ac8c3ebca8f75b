#include "host/bench/Workbench.h"

#include <iostream>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/HostError.h"
#include "host/base/ErrorLog.h"
#include "host/base/RegistryStore.h"
#include "host/base/Tr.h"
#include "host/bench/CatalogueFile.h"
#include "host/bench/InputError.h"
#include "host/bench/ProgramFiles.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/serial/CommApplication.h"
#include "toolkit/controls/ControlClasses.h"

namespace host::bench {

namespace {

document::Host::Settings SettingsOf(const GlobalOptions& options) {
  document::Host::Settings settings;
  settings.stateFolder = files::FindStateFolder(options.state).value_or("");
  settings.language = options.language;
  if (!options.catalogue.empty()) settings.catalogue = ReadCatalogue(options.catalogue);
  if (std::filesystem::is_directory(files::Translations()))
    settings.translationFolders.push_back(files::Translations());
  return settings;
}

}  // namespace

Workbench::Workbench(const GlobalOptions& options, double timeScale, Settings settings)
    : timeScale_(timeScale),
      application_(
          std::make_shared<toolkit::headless::Application>(toolkit::loop::ClockKind::kReal, timeScale)),
      ports_(std::make_shared<serial::PortManager>(application_, serial::DeviceOpener(application_))),
      host_(document::Host::Create(SettingsOf(options), application_)),
      leads_(std::make_unique<run::LeadCalibrationGuard>(
          run::LeadCalibrationGuard::Parts{*application_, *ports_, *host_->Registry()})) {
  toolkit::controls::ConnectControls(*application_, *host_);
  const auto comm = std::make_shared<serial::CommApplication>(ports_);
  host_->Register(orvik::HostClasses::kCommApplication, [comm] { return comm; });
  ProvideCatalogue(settings);
  try {
    plugIn_ = host_->OpenPlugIn(files::PlugInLibrary());
  } catch (...) {
    host_->Close();
    throw;
  }
}

Workbench::~Workbench() {
  plugIn_.reset();
  host_->Close();
  if (const auto& failure = host_->Log()->Failure(); !failure.empty())
    std::cerr << "orvik-bench: " << Tr("the error log could not be written: %%1", {failure}) << "\n";
}

/// Without a catalogue in the settings the shipped one is used.
void Workbench::ProvideCatalogue(Settings settings) {
  if (!HasOwnCatalogue(settings))
    host_->Registry()->StandIn(plugins::keld::kRegistryHive, plugins::keld::kCatalogueKey,
                               plugins::keld::kCatalogueValue, ReadCatalogue(files::Catalogue()));
}

bool Workbench::HasOwnCatalogue(Settings settings) const {
  try {
    return !orvik::IsEmpty(host_->Registry()->Read(plugins::keld::kRegistryHive, plugins::keld::kCatalogueKey,
                                                   plugins::keld::kCatalogueValue));
  } catch (const orvik::HostError& error) {
    if (settings == Settings::kNeeded) throw;
    std::cerr << "orvik-bench: "
              << Tr("the settings are ignored, and the shipped catalogue is used: %%1", {error.Description()})
              << "\n";
    return false;
  }
}

}  // namespace host::bench
