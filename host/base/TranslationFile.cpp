#include "host/base/TranslationFile.h"

#include <optional>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"

namespace host {
namespace {

struct Entry {
  std::size_t line;  ///< the one that ended it
  std::optional<std::string> context;
  std::string original;
  std::string text;
};

/// Reads the file line by line and collects one entry at a time.
class Reader {
 public:
  explicit Reader(const std::string& name) : name_(name) {}

  void Line(std::string_view line) {
    ++number_;
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
    while (!line.empty() && (line.front() == ' ' || line.front() == '\t')) line.remove_prefix(1);
    if (line.empty()) {
      Finish();
    } else if (line.front() == '#') {
      Comment(line);
    } else if (line.front() == '"') {
      if (!part_) Fail(Tr("a text stands here without \"msgctxt\", \"msgid\" or \"msgstr\""));
      *part_ += Quoted(line);
    } else {
      Keyword(line);
    }
  }

  std::vector<Entry> Done() {
    Finish();
    return std::move(entries_);
  }

  [[noreturn]] void Fail(std::size_t line, const std::string& reason) const {
    throw orvik::HostError(orvik::HostError::kPathError, "OrvikTypeLib.LanguageService",
                           Tr("%%1, line %%2: %%3", {name_, std::to_string(line), reason}));
  }

 private:
  [[noreturn]] void Fail(const std::string& reason) const { Fail(number_, reason); }

  void Comment(std::string_view line) {
    // A comment after a translation begins the next entry.
    if (text_) Finish();
    if (line.starts_with("#,") && line.find("fuzzy") != std::string_view::npos) fuzzy_ = true;
  }

  void Keyword(std::string_view line) {
    const auto blank = line.find_first_of(" \t\"");
    const auto word = line.substr(0, blank);
    if (word != "msgctxt" && word != "msgid" && word != "msgstr")
      Fail(Tr("\"%%1\" is not known here", {std::string(word)}));
    // An entry begins with "msgctxt", or with "msgid" when it has none.
    if (text_ && word != "msgstr") Finish();
    auto& part = word == "msgctxt" ? context_ : word == "msgid" ? original_ : text_;
    if (part) Fail(Tr("a second \"%%1\" in one entry", {std::string(word)}));
    const auto quote = line.find('"');
    if (quote == std::string_view::npos) Fail(Tr("the text is not in quotation marks"));
    part = Quoted(line.substr(quote));
    part_ = &part.value();
  }

  std::string Quoted(std::string_view line) const {
    if (line.size() < 2 || line.back() != '"') Fail(Tr("the closing quotation mark is missing"));
    line = line.substr(1, line.size() - 2);
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
      if (line[i] == '"') Fail(Tr("a quotation mark inside the text has no \"\\\" before it"));
      if (line[i] != '\\') {
        text += line[i];
        continue;
      }
      if (++i == line.size()) Fail(Tr("the closing quotation mark is missing"));
      switch (line[i]) {
        case 'n':
          text += '\n';
          break;
        case 't':
          text += '\t';
          break;
        case '"':
        case '\\':
          text += line[i];
          break;
        default:
          Fail(Tr("\"%%1\" is not known", {std::string("\\") + line[i]}));
      }
    }
    return text;
  }

  void Finish() {
    if ((context_ || original_) && !text_) Fail(Tr("the entry has no \"msgstr\""));
    if (text_ && !fuzzy_ && !text_->empty())
      entries_.push_back({number_, context_, original_.value_or(""), *text_});
    context_.reset();
    original_.reset();
    text_.reset();
    part_ = nullptr;
    fuzzy_ = false;
  }

  const std::string& name_;
  std::size_t number_ = 0;
  std::optional<std::string> context_, original_, text_;
  std::string* part_ = nullptr;
  bool fuzzy_ = false;
  std::vector<Entry> entries_;
};

/// Hands every translated entry of the file to `take`, with what to call when it is wrong.
template <class Take>
void ReadEntries(std::string_view text, const std::string& name, Take take) {
  Reader reader(name);
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    reader.Line(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  for (const auto& entry : reader.Done())
    take(entry, [&](const std::string& reason) { reader.Fail(entry.line, reason); });
}

}  // namespace

Translations ReadTranslations(std::string_view text, const std::string& name) {
  Translations translations;
  ReadEntries(text, name, [&](const Entry& entry, auto fail) {
    if (!entry.context) return;  // the file's header
    const auto number = WholeNumber(*entry.context);
    if (!number || *number < 0) fail(Tr("the \"msgctxt\" of the entry is not a text number"));
    if (!translations.emplace(*number, entry.text).second)
      fail(Tr("the text %%1 is translated twice", {*entry.context}));
  });
  return translations;
}

OwnTranslations ReadOwnTranslations(std::string_view text, const std::string& name) {
  OwnTranslations translations;
  ReadEntries(text, name, [&](const Entry& entry, auto fail) {
    if (entry.original.empty()) return;  // the file's header
    if (!translations.emplace(entry.original, entry.text).second)
      fail(Tr("\"%%1\" is translated twice", {entry.original}));
  });
  return translations;
}

}  // namespace host
