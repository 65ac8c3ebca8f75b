#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IRegistryReader.h"
#include "host/document/Host.h"
#include "plugin/ClassLibrary.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "tests/support/OnScreen.h"
#include "tests/support/TemporaryFolder.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/headless/Application.h"

namespace support {

/// The real host without devices: the headless toolkit on the virtual clock, a state folder of its own, and
/// the plug-in's classes, linked into the test and opened by this host.
class HostOnly {
 public:
  /// @param catalogue the settings value "Configuration"; without it there is no settings key
  explicit HostOnly(std::optional<std::string> catalogue = {})
      : application_(std::make_shared<toolkit::headless::Application>(toolkit::loop::ClockKind::kVirtual)),
        host_(host::document::Host::Create({.stateFolder = folder_.Path(),
                                            .language = {},
                                            .catalogue = std::move(catalogue),
                                            .translationFolders = {}},
                                           application_)) {
    host_->AddClasses(std::make_shared<keld::plugin::ClassLibrary>());
    toolkit::controls::ConnectControls(*application_, *host_);
    keld::MKELDGlobalVars::Open(host_);
  }
  HostOnly(const HostOnly&) = delete;
  HostOnly& operator=(const HostOnly&) = delete;
  ~HostOnly() { keld::MKELDGlobalVars::Close(); }

  host::document::Host& Host() { return *host_; }
  const std::shared_ptr<host::document::Host>& SharedHost() const { return host_; }
  toolkit::headless::Application& Application() { return *application_; }
  const std::shared_ptr<toolkit::headless::Application>& SharedApplication() const { return application_; }
  const std::filesystem::path& Folder() const { return folder_.Path(); }

  /// Creates the settings key and writes the catalogue's text into it.
  void WriteCatalogue(const std::string& text) {
    const auto registry = keld::MKELDGlobalVars::RegistryReader();
    if (!registry->CreateKey(keld::MKELDConstants::kHive, keld::MKELDConstants::kSettingsKey))
      throw std::runtime_error("the settings key cannot be made");
    registry->WriteValue(keld::MKELDConstants::kConfigurationValue, text);
  }

  /// The lines of the host's error log.
  std::vector<std::string> ErrorLines() const {
    std::vector<std::string> lines;
    std::ifstream log(folder_.Path() / "error.log");
    for (std::string line; std::getline(log, line);) lines.push_back(line);
    return lines;
  }

 private:
  TemporaryFolder folder_;
  std::shared_ptr<toolkit::headless::Application> application_;
  std::shared_ptr<void> screen_ = OnScreen(application_);
  std::shared_ptr<host::document::Host> host_;
};

}  // namespace support
