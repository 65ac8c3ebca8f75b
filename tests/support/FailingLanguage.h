#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ILanguageService.h"
#include "host/document/Host.h"

namespace support {

/// How the language service fails the plug-in.
enum class LanguageFault { kRaisesHostError, kRaisesAnythingElse, kIsMissing };

inline std::string NameOf(LanguageFault fault) {
  return fault == LanguageFault::kRaisesHostError      ? "RaisesHostError"
         : fault == LanguageFault::kRaisesAnythingElse ? "RaisesAnythingElse"
                                                       : "IsMissing";
}
inline std::ostream& operator<<(std::ostream& out, LanguageFault fault) { return out << NameOf(fault); }

/// Translates for the host and fails the plug-in.
class FailingLanguage final : public orvik::ILanguageService {
 public:
  FailingLanguage(LanguageFault fault, std::shared_ptr<orvik::ILanguageService> real)
      : fault_(fault), real_(std::move(real)) {}

 private:
  void Check(const std::string& module) const {
    if (module != "KELD") return;
    if (fault_ == LanguageFault::kRaisesHostError) throw orvik::HostError(5, "language", "no texts");
    throw 42;
  }
  std::string IObject_ClassID() const override { return orvik::HostClasses::kLanguageService; }
  std::string ILanguageService_Translate(const std::string& sText, const std::string& sModule,
                                         const std::vector<std::string>& asValues) const override {
    Check(sModule);
    return real_->Translate(sText, sModule, asValues);
  }
  void ILanguageService_TranslateControls(const std::string& sModule,
                                          std::shared_ptr<orvik::platform::IPanel> Controls) const override {
    Check(sModule);
    real_->TranslateControls(sModule, std::move(Controls));
  }

  const LanguageFault fault_;
  const std::shared_ptr<orvik::ILanguageService> real_;
};

/// Makes the host's language service fail. Call it before the plug-in first asks for the service.
inline void FailLanguage(host::document::Host& host, LanguageFault fault) {
  std::shared_ptr<orvik::ILanguageService> failing;
  if (fault != LanguageFault::kIsMissing)
    failing = std::make_shared<FailingLanguage>(
        fault, orvik::As<orvik::ILanguageService>(host.CreateObject(orvik::HostClasses::kLanguageService)));
  host.Register(orvik::HostClasses::kLanguageService, [failing] { return failing; });
}

}  // namespace support
