#include "tests/contract/conformance/LoadedLibrary.h"

#include <fstream>
#include <stdexcept>
#include <utility>

#include "OrvikTypeLib/IXmlDocument.h"
#include "host/elements/ElementFactory.h"
#include "tester/BuiltInProfiles.h"
#include "toolkit/controls/ControlClasses.h"

namespace conformance {

LoadedLibrary::LoadedLibrary(Subject subject)
    : subject_(std::move(subject)),
      application_(std::make_shared<toolkit::headless::Application>(toolkit::loop::ClockKind::kVirtual)),
      host_(host::document::Host::Create({folder_.Path(), {}, subject_.catalogue, {}}, application_)),
      line_(application_, *sim::MakeBuiltInProfile(sim::kDefaultProfile)),
      ports_(std::make_shared<host::serial::PortManager>(
          application_,
          [this](const std::string&, const host::serial::LineSettings&) {
            return std::make_unique<host::serial::MemoryTransport>(line_.Line());
          })),
      wire_(*ports_->TheWire()) {
  toolkit::controls::ConnectControls(*application_, *host_);
  ports_->Assign(subject_.plugInId, "memory");
  host_->Register(orvik::HostClasses::kCommApplication,
                  [ports = ports_] { return std::make_shared<host::serial::CommApplication>(ports); });
  library_ = std::make_unique<host::document::PlugInLibrary>(subject_.path, host_);
  host_->AddClasses(library_->Classes());
  plugIn_ = New<orvik::IPlugIn>(library_->PlugInClass());
  if (!plugIn_) throw std::runtime_error(subject_.path + " has no plug-in object");
  plugIn_->Initialize(host_);
  host_->Elements()->AddPlugIn(plugIn_);
}

LoadedLibrary::~LoadedLibrary() {
  plugIn_.reset();
  host_->Close();
  library_.reset();
}

std::shared_ptr<orvik::ITestElement> LoadedLibrary::NewTest(std::int32_t testId) const {
  const auto wanted = testId == 0 ? subject_.testId : testId;
  auto created = plugIn_->CreateTest(wanted);
  if (!created) throw std::runtime_error("the catalogue has no test " + std::to_string(wanted));
  return created;
}

std::shared_ptr<orvik::IXmlNode> LoadedLibrary::NewNode(const std::string& name) {
  return New<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument)->CreateRoot(name);
}

std::shared_ptr<orvik::IXmlNode> LoadedLibrary::Parsed(const std::string& xml) {
  const auto document = New<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
  if (!document->LoadFromString(xml)) throw std::runtime_error(document->LastError());
  return document->Root();
}

std::vector<std::string> LoadedLibrary::ErrorLines() const {
  std::vector<std::string> lines;
  std::ifstream log(folder_.Path() / "error.log");
  for (std::string line; std::getline(log, line);) lines.push_back(line);
  return lines;
}

}  // namespace conformance
