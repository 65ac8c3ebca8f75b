#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ILanguageService.h"
#include "host/document/Host.h"

namespace support {

/// The host's language service with a hook: a test can inspect the state while a text is translated.
class WatchedLanguage final : public orvik::ILanguageService {
 public:
  explicit WatchedLanguage(std::shared_ptr<orvik::ILanguageService> real) : real_(std::move(real)) {}

  /// Called with each text that is asked for by itself.
  std::function<void(const std::string& text)> onText;
  /// The translation of every such text, where it is set.
  std::optional<std::string> answer;

 private:
  std::string IObject_ClassID() const override { return orvik::HostClasses::kLanguageService; }
  std::string ILanguageService_Translate(const std::string& sText, const std::string& sModule,
                                         const std::vector<std::string>& asValues) const override {
    if (onText) onText(sText);
    return answer ? *answer : real_->Translate(sText, sModule, asValues);
  }
  void ILanguageService_TranslateControls(const std::string& sModule,
                                          std::shared_ptr<orvik::platform::IPanel> Controls) const override {
    real_->TranslateControls(sModule, std::move(Controls));
  }

  const std::shared_ptr<orvik::ILanguageService> real_;
};

/// Watches the host's language service from now on. Call it before the plug-in first asks for the service.
inline std::shared_ptr<WatchedLanguage> WatchLanguage(host::document::Host& host) {
  auto watched = std::make_shared<WatchedLanguage>(
      orvik::As<orvik::ILanguageService>(host.CreateObject(orvik::HostClasses::kLanguageService)));
  host.Register(orvik::HostClasses::kLanguageService, [watched] { return watched; });
  return watched;
}

}  // namespace support
