#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IObject.h"

namespace orvik::platform {
class IPanel;
}

namespace orvik {

/// Translates texts (class "OrvikTypeLib.LanguageService").
/// A text is a literal of the form number, "::", English default, for example "20702::No values".
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class ILanguageService : public virtual IObject {
 public:
  /// The text to show for the whole literal: the translation of its number for the module, else the text
  /// after "::".
  /// "%%1", "%%2" are replaced by the values, literally and once.
  std::string Translate(const std::string& sText, const std::string& sModule,
                        const std::vector<std::string>& asValues) const {
    return ILanguageService_Translate(sText, sModule, asValues);
  }
  /// Rewrites every caption on the form or user control that is written in the language-string form.
  void TranslateControls(const std::string& sModule, std::shared_ptr<platform::IPanel> Controls) const {
    ILanguageService_TranslateControls(sModule, std::move(Controls));
  }

 private:
  virtual std::string ILanguageService_Translate(const std::string& sText, const std::string& sModule,
                                                 const std::vector<std::string>& asValues) const = 0;
  virtual void ILanguageService_TranslateControls(const std::string& sModule,
                                                  std::shared_ptr<platform::IPanel> Controls) const = 0;
};

}  // namespace orvik
