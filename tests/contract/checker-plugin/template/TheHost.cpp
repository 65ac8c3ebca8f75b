#include "tests/contract/checker-plugin/template/TheHost.h"

#include <utility>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ILanguageService.h"
#include "tests/contract/checker-plugin/template/Names.h"

namespace check {
namespace {

std::shared_ptr<orvik::IHost>& Kept() {
  static std::shared_ptr<orvik::IHost> host;
  return host;
}

}  // namespace

void SetHost(std::shared_ptr<orvik::IHost> host) { Kept() = std::move(host); }

orvik::IHost& TheHost() { return orvik::Required(Kept()); }

std::string Translated(const std::string& text, const std::vector<std::string>& values) {
  return NewHostObject<orvik::ILanguageService>(orvik::HostClasses::kLanguageService)
      ->Translate(text, names::kModule, values);
}

}  // namespace check
