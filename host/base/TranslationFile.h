#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>

namespace host {

/// Translated texts by their number.
using Translations = std::unordered_map<std::int32_t, std::string>;

/// Reads a gettext file ("PO", UTF-8) in which each entry carries its text number as "msgctxt":
///
///     msgctxt "20702"
///     msgid "No values"
///     msgstr "Keine Werte"
///
/// Entries that are marked fuzzy or have an empty "msgstr" count as not translated.
/// @param name the file's name, for errors
/// @throws HostError 75 with file and line when the text is malformed
Translations ReadTranslations(std::string_view text, const std::string& name);

/// Translated texts by their English originals.
using OwnTranslations = std::unordered_map<std::string, std::string>;

/// Reads a gettext file whose entries carry no numbers: the originals are the keys. Otherwise as above.
OwnTranslations ReadOwnTranslations(std::string_view text, const std::string& name);

}  // namespace host
