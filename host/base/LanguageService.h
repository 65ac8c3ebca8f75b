#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "OrvikTypeLib/ILanguageService.h"
#include "host/base/TranslationFile.h"

namespace host {

/// A file of translations, MODULE.LANGUAGE.po.
struct TranslationFile {
  std::string module;
  std::filesystem::path path;
};

/// The module of the program's own texts, which have no numbers (see `Tr`).
inline constexpr char kProgramModule[] = "orvik-bench";

/// The files of a language, those of the general language ("pt") before those of the special one ("pt_BR").
/// `HostError` 5 for a language that is not a name such as "da" or "pt_BR".
std::vector<TranslationFile> TranslationFiles(const std::string& language,
                                              const std::vector<std::filesystem::path>& folders);

/// Translates numbered texts. The translations of a module into a language are in the file
/// MODULE.LANGUAGE.po of one of the folders ("KELD.da.po"); texts that the module has no translation for are
/// looked up in the host's own file ("orvik.da.po"). Without either the English text after "::" is shown.
class LanguageService final : public orvik::ILanguageService {
 public:
  /// Reads all files of the language. `HostError` 75 for a malformed one, and `HostError` 5 for a language
  /// that is not a name such as "da" or "pt_BR".
  /// @param language empty for English; "de_DE.UTF-8" falls back to "de"
  LanguageService(const std::string& language, const std::vector<std::filesystem::path>& folders);

 private:
  std::string ILanguageService_Translate(const std::string& sText, const std::string& sModule,
                                         const std::vector<std::string>& asValues) const override;
  void ILanguageService_TranslateControls(const std::string& sModule,
                                          std::shared_ptr<orvik::platform::IPanel> Controls) const override;

  const std::string* Find(const std::string& module, std::string_view number) const;

  /// Translations by module.
  std::map<std::string, Translations> modules_;
};

/// Whether the text is decimal digits (or none), "::" and anything.
bool IsLanguageString(std::string_view text);

/// The text with "%%1" to "%%9" replaced by the values. Placeholders inside values are not
/// replaced. A placeholder without a value remains.
std::string WithValues(std::string_view text, const std::vector<std::string>& values);

}  // namespace host
