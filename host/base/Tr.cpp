#include "host/base/Tr.h"

#include "host/base/Files.h"
#include "host/base/LanguageService.h"

namespace host {
namespace {

OwnTranslations& Chosen() {
  static OwnTranslations texts;
  return texts;
}

}  // namespace

std::string Tr(std::string_view english, const std::vector<std::string>& values) {
  const auto& texts = Chosen();
  const auto found = texts.find(std::string(english));
  return WithValues(found == texts.end() ? english : std::string_view(found->second), values);
}

void ChooseLanguage(const std::string& language, const std::vector<std::filesystem::path>& folders) {
  OwnTranslations texts;
  for (const auto& file : TranslationFiles(language, folders)) {
    if (file.module != kProgramModule) continue;
    for (auto& [english, text] : ReadOwnTranslations(ReadFile(file.path), file.path.string()))
      texts[english] = text;
  }
  Chosen() = std::move(texts);
}

}  // namespace host
