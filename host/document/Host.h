#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "OrvikTypeLib/IClassLibrary.h"
#include "OrvikTypeLib/IHost.h"
#include "OrvikTypeLib/IPlugIn.h"
#include "host/base/Text.h"

namespace host {
class ErrorLog;
class LanguageService;
class RegistryStore;
}  // namespace host
namespace host::elements {
class ElementFactory;
}

namespace host::document {

class PlugInLibrary;

/// The reference host: its classes by identifier, its services, and the plug-ins that it has opened.
///
/// An opened library holds the host, so call `Close` after opening one, before releasing the host.
/// User-interface thread only.
class Host final : public orvik::IHost {
 public:
  using Factory = std::function<std::shared_ptr<orvik::IObject>()>;

  struct Settings {
    /// Where registry and error log live; created when it is needed. Empty for none: settings cannot be
    /// saved.
    std::filesystem::path stateFolder;
    /// Language of texts, for example "da"; empty for English.
    std::string language;
    /// Catalogue text that replaces the one in the registry.
    std::optional<std::string> catalogue = {};
    /// Folders with translations (MODULE.LANGUAGE.po).
    std::vector<std::filesystem::path> translationFolders = {};
  };

  /// `HostError` when a translation cannot be read.
  static std::shared_ptr<Host> Create(Settings settings,
                                      std::shared_ptr<orvik::platform::IApplication> application);

  /// Use `Create`.
  explicit Host(std::shared_ptr<orvik::platform::IApplication> application);
  ~Host() override;

  /// Adds a class, or replaces one. Identifiers are matched without regard to case.
  void Register(const std::string& classId, Factory factory);

  /// Adds the classes of a library that is linked in.
  void AddClasses(std::shared_ptr<orvik::IClassLibrary> classes);

  /// Opens a plug-in library, creates its plug-in object (the class whose identifier ends with "Plugin") and
  /// initialises it. `HostError` when the file is not a plug-in library of this contract's version.
  std::shared_ptr<orvik::IPlugIn> OpenPlugIn(const std::filesystem::path& library);

  /// Lets go of all plug-ins, then closes their libraries. Objects of theirs may be released later, not used.
  void Close();

  const std::shared_ptr<elements::ElementFactory>& Elements() const { return elements_; }
  const std::shared_ptr<LanguageService>& Language() const { return language_; }
  const std::shared_ptr<ErrorLog>& Log() const { return log_; }
  const std::shared_ptr<RegistryStore>& Registry() const { return registry_; }

 private:
  std::shared_ptr<orvik::IObject> IHost_CreateObject(const std::string& sClassID) override;
  std::shared_ptr<orvik::platform::IApplication> IHost_Application() const override { return application_; }

  void RegisterServices(const Settings& settings);
  void RegisterElements();
  void RegisterControls();

  std::shared_ptr<orvik::platform::IApplication> application_;
  std::unordered_map<std::string, Factory, HashApartFromCase, EqualApartFromCase> factories_;
  std::vector<std::shared_ptr<orvik::IClassLibrary>> classLibraries_;
  std::vector<std::unique_ptr<PlugInLibrary>> plugInLibraries_;
  std::shared_ptr<elements::ElementFactory> elements_;
  std::shared_ptr<LanguageService> language_;
  std::shared_ptr<ErrorLog> log_;
  std::shared_ptr<RegistryStore> registry_;
};

}  // namespace host::document
