#include "host/app/Workbench.h"

#include "OrvikTypeLib/HostClasses.h"
#include "host/app/CatalogueFile.h"
#include "host/app/InputError.h"
#include "host/app/ProgramFiles.h"
#include "host/controls/RegisterControls.h"
#include "host/serial/CommApplication.h"
#include "host/services/RegistryStore.h"

namespace bench {

namespace {

constexpr std::int32_t kHive = static_cast<std::int32_t>(0x80000002U);
constexpr char kSettingsKey[] = "Software\\Telvane\\orvik\\KELD(IN)";
constexpr char kCatalogueValue[] = "Configuration";

Host::Settings SettingsOf(const GlobalOptions& options) {
  Host::Settings settings;
  settings.stateFolder = files::StateFolder(options.state);
  settings.language = options.language;
  if (!options.catalogue.empty()) settings.catalogue = ReadCatalogue(options.catalogue);
  if (std::filesystem::is_directory(files::Translations()))
    settings.translationFolders.push_back(files::Translations());
  return settings;
}

}  // namespace

Workbench::Workbench(const GlobalOptions& options, double timeScale)
    : timeScale_(timeScale),
      application_(std::make_shared<headless::Application>(ClockKind::kReal, timeScale)),
      ports_(std::make_shared<PortManager>(application_, DeviceOpener(application_))),
      host_(Host::Create(SettingsOf(options), application_)) {
  RegisterControls(*host_);
  ConnectControls(*application_, *host_);
  const auto comm = std::make_shared<CommApplication>(ports_);
  host_->Register(orvik::HostClasses::kCommApplication, [comm] { return comm; });
  SeedCatalogue();
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
}

void Workbench::SeedCatalogue() {
  auto& registry = *host_->Registry();
  if (!orvik::IsEmpty(registry.Read(kHive, kSettingsKey, kCatalogueValue))) return;
  registry.Write(kHive, kSettingsKey, kCatalogueValue, ReadCatalogue(files::Catalogue()));
}

}  // namespace bench
