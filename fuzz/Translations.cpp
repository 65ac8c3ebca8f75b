// A file of translations, of the plug-in's numbered texts and of the program's own.
#include <string>

#include "OrvikTypeLib/HostError.h"
#include "fuzz/HostErrors.h"
#include "fuzz/Promise.h"
#include "host/base/TranslationFile.h"

namespace {

using fuzz::Require;

constexpr char kFile[] = "given.po";
constexpr char kPlace[] = "given.po, line ";

/// The text in the syntax of a file of translations.
std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '\n') {
      quoted += "\\n";
      continue;
    }
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + "\"\n";
}

std::string FileOf(const host::Translations& texts) {
  std::string file;
  for (const auto& [number, text] : texts)
    file += "msgctxt \"" + std::to_string(number) + "\"\nmsgid \"\"\nmsgstr " + Quoted(text) + "\n";
  return file;
}

std::string FileOf(const host::OwnTranslations& texts) {
  std::string file;
  for (const auto& [original, text] : texts)
    file += "msgid " + Quoted(original) + "msgstr " + Quoted(text) + "\n";
  return file;
}

/// What can be read can be written and read again.
template <class Texts>
void Check(const std::string& text, Texts (*read)(std::string_view, const std::string&)) {
  Texts texts;
  if (fuzz::RefusalOf([&] { texts = read(text, kFile); }, orvik::HostError::kPathError, kPlace)) return;
  for (const auto& [key, translation] : texts)
    Require(!translation.empty(), "an empty text counts as not translated");
  Require(read(FileOf(texts), kFile) == texts, "translations read back as they were");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto text = fuzz::TextOf(data, size);
  Check(text, host::ReadTranslations);
  Check(text, host::ReadOwnTranslations);
  return 0;
}
