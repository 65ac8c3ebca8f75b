#include "host/document/Host.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "host/base/ErrorLog.h"
#include "host/base/LanguageService.h"
#include "host/base/RegistryReader.h"
#include "host/base/RegistryStore.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/document/PlugInLibrary.h"
#include "host/elements/ElementFactory.h"
#include "host/elements/ServiceRecord.h"
#include "host/elements/TestContainer.h"
#include "host/elements/TestElement.h"
#include "host/instruments/InstrumentRecord.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/standards/Limit.h"
#include "host/standards/Standard.h"
#include "host/standards/StandardColl.h"
#include "host/xml/Persistence.h"
#include "host/xml/XmlDocument.h"
#include "toolkit/controls/ControlClasses.h"

namespace host::document {
namespace {

using orvik::HostError;
namespace classes = orvik::HostClasses;

constexpr char kHostSource[] = "orvik-bench";

}  // namespace

std::shared_ptr<Host> Host::Create(Settings settings,
                                   std::shared_ptr<orvik::platform::IApplication> application) {
  auto host = std::make_shared<Host>(std::move(application));
  const std::weak_ptr<Host> weak = host;
  host->elements_ = std::make_shared<elements::ElementFactory>(
      [weak](const std::string& classId) { return orvik::Required(weak)->CreateObject(classId); });
  host->RegisterServices(settings);
  host->RegisterElements();
  host->RegisterControls();
  return host;
}

Host::Host(std::shared_ptr<orvik::platform::IApplication> application)
    : application_(std::move(application)) {}

Host::~Host() = default;

void Host::RegisterServices(const Settings& settings) {
  language_ = std::make_shared<LanguageService>(settings.language, settings.translationFolders);
  log_ = std::make_shared<ErrorLog>(settings.stateFolder);
  registry_ = std::make_shared<RegistryStore>(settings.stateFolder);
  if (settings.catalogue)
    registry_->StandIn(plugins::keld::kRegistryHive, plugins::keld::kCatalogueKey,
                       plugins::keld::kCatalogueValue, *settings.catalogue);

  Register(classes::kLanguageService, [this] { return language_; });
  Register(classes::kErrorLog, [this] { return log_; });
  Register(classes::kXmlDocument, [] { return std::make_shared<xml::XmlDocument>(); });
  Register(classes::kRegistryReader, [this] { return std::make_shared<RegistryReader>(registry_, log_); });
  Register(classes::kPersistence, [] { return std::make_shared<xml::Persistence>(); });
  Register(classes::kServiceRecord, [] { return std::make_shared<elements::ServiceRecord>(); });
}

void Host::RegisterElements() {
  Register(classes::kTestElement, [this] { return std::make_shared<elements::TestElement>(elements_); });
  Register(classes::kTestContainer, [this] { return std::make_shared<elements::TestContainer>(elements_); });
  Register(classes::kStandardColl, [this] { return std::make_shared<standards::StandardColl>(language_); });
  Register(classes::kStandard, [] { return std::make_shared<standards::Standard>(); });
  Register(classes::kLimit, [] { return std::make_shared<standards::Limit>(); });
  Register(classes::kInstrumentRecord, [] { return std::make_shared<instruments::InstrumentRecord>(); });
}

void Host::RegisterControls() {
  for (const auto& [identifier, create] : toolkit::controls::ControlClasses())
    Register(identifier, [this, create = create] {
      return create(orvik::As<orvik::ILanguageService>(CreateObject(classes::kLanguageService)));
    });
}

void Host::Register(const std::string& classId, Factory factory) {
  factories_.insert_or_assign(classId, std::move(factory));
}

void Host::AddClasses(std::shared_ptr<orvik::IClassLibrary> classes) {
  classLibraries_.push_back(std::move(classes));
}

std::shared_ptr<orvik::IObject> Host::IHost_CreateObject(const std::string& sClassID) {
  if (const auto known = factories_.find(sClassID); known != factories_.end()) return known->second();
  for (const auto& library : classLibraries_) {
    if (auto created = library->CreateObject(sClassID)) return created;
  }
  throw HostError(HostError::kClassNotRegistered, kHostSource,
                  Tr("the class \"%%1\" is not registered; open the plug-in that it belongs to", {sClassID}));
}

std::shared_ptr<orvik::IPlugIn> Host::OpenPlugIn(const std::filesystem::path& library) {
  const auto self = std::dynamic_pointer_cast<orvik::IHost>(shared_from_this());
  auto opened = std::make_unique<PlugInLibrary>(library, self);
  const auto plugInClass = opened->PlugInClass();
  const auto plugIn = orvik::As<orvik::IPlugIn>(opened->Classes()->CreateObject(plugInClass));
  if (!plugIn)
    throw HostError(HostError::kClassNotRegistered, kHostSource,
                    Tr("%%1: the class \"%%2\" is no plug-in", {library.string(), plugInClass}));
  AddClasses(opened->Classes());
  plugInLibraries_.push_back(std::move(opened));
  plugIn->Initialize(self);
  elements_->AddPlugIn(plugIn);
  return plugIn;
}

void Host::Close() {
  elements_->ReleasePlugIns();
  classLibraries_.clear();
  plugInLibraries_.clear();
}

}  // namespace host::document
