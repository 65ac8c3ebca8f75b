#include "host/cli/help/ProgramLanguage.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string_view>

#include "host/base/LanguageService.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/bench/ProgramFiles.h"

namespace host::cli {

namespace {

constexpr std::string_view kOption = "--lang";
constexpr char kEnglish[] = "en";

/// The value of "--lang", as the parser will find it.
std::optional<std::string> Given(int argumentCount, const char* const* arguments) {
  std::optional<std::string> given;
  for (int i = 1; i < argumentCount; ++i) {
    const std::string_view word = arguments[i];
    if (word == "--") break;
    if (word == kOption && i + 1 < argumentCount) given = arguments[++i];
    if (word.starts_with(kOption) && word.substr(kOption.size()).starts_with('='))
      given = word.substr(kOption.size() + 1);
  }
  return given;
}

/// The name without its character set: "de_DE.UTF-8@euro" is "de_DE". Files are found by it, so it may hold
/// nothing else than letters, digits and "_"; none when it does.
std::optional<std::string> NameOf(const std::string& language) {
  auto name = language.substr(0, language.find_first_of(".@"));
  const bool valid = !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
  });
  if (!valid) return {};
  return name;
}

/// The language in which the program has texts for this one; empty for English, none when it has not.
std::optional<std::string> Resolved(const std::string& language) {
  const auto name = NameOf(language);
  if (!name) return {};
  if (*name == "C" || *name == "POSIX" || name->substr(0, name->find_first_of("_-")) == kEnglish) return "";
  const auto files = TranslationFiles(*name, {bench::files::Translations()});
  const bool known = std::any_of(files.begin(), files.end(),
                                 [](const TranslationFile& file) { return file.module == kProgramModule; });
  if (!known) return {};
  return name;
}

std::string OfEnvironment() {
  for (const char* variable : {"ORVIK_LANG", "LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value && *value != '\0') return value;
  }
  return {};
}

std::string ListOfLanguages() {
  std::string list;
  for (const auto& language : KnownLanguages()) list += (list.empty() ? "" : ", ") + language;
  return list;
}

}  // namespace

std::vector<std::string> KnownLanguages() {
  const std::string beginning = std::string(kProgramModule) + ".";
  std::vector<std::string> languages{kEnglish};
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(bench::files::Translations(), error)) {
    const auto name = entry.path().filename();
    const auto stem = name.stem().string();
    if (name.extension() == ".po" && stem.starts_with(beginning))
      languages.push_back(stem.substr(beginning.size()));
  }
  std::sort(languages.begin(), languages.end());
  return languages;
}

std::string ChooseProgramLanguage(int argumentCount, const char* const* arguments) {
  auto language = Resolved(OfEnvironment()).value_or("");
  ChooseLanguage(language, {bench::files::Translations()});
  if (const auto given = Given(argumentCount, arguments)) {
    const auto wanted = Resolved(*given);
    if (!wanted)
      throw bench::InputError(Tr("--lang %%1: there are no translations into this language; give one of %%2",
                                 {*given, ListOfLanguages()}));
    language = *wanted;
    ChooseLanguage(language, {bench::files::Translations()});
  }
  return language;
}

}  // namespace host::cli
