#pragma once

#include <string>
#include <vector>

namespace host::cli {

/// Chooses the language of the program's texts, before the command line is parsed: that of "--lang", else
/// that of the environment (ORVIK_LANG, then LC_ALL, LC_MESSAGES and LANG; the first that is set decides). A
/// language of the environment that is invalid or has no translations means English; so are "C" and "POSIX".
/// @return the language for the plug-in's texts, such as "de" or "pt_BR"; empty for English
/// @throws InputError for a "--lang" without translations; the message names the languages that have them
/// @throws HostError 75 for a malformed file of translations
std::string ChooseProgramLanguage(int argumentCount, const char* const* arguments);

/// The languages that there are translations of the program into, sorted, and English.
std::vector<std::string> KnownLanguages();

}  // namespace host::cli
