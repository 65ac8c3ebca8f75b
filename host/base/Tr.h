#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A text of the program's own in the language that was chosen; the English one itself when there is no
/// translation. "%%1" to "%%9" are replaced by the values, once. Texts are written as literals at the call,
/// so that the list of texts to translate can be collected from the sources.
///
///     Tr("element %%1: it takes no limits", {id})
std::string Tr(std::string_view english, const std::vector<std::string>& values = {});

/// Marks an English text that is translated later, by `Tr(text)`, and stored in English until
/// then: a status, say, that programs read too.
constexpr const char* TrNoop(const char* english) { return english; }

/// Chooses the language of the whole process; the files read are orvik-bench.LANGUAGE.po of the folders.
/// @param language as for `LanguageService`; empty for English
/// @throws HostError 75 when a file is malformed, 5 when the language is invalid
void ChooseLanguage(const std::string& language, const std::vector<std::filesystem::path>& folders);

}  // namespace host
