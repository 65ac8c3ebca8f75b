#include "host/services/TranslationFile.h"

#include <optional>

#include "OrvikTypeLib/HostError.h"
#include "host/services/Text.h"

namespace bench {
namespace {

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
      if (!part_) Fail("a text stands here without \"msgctxt\", \"msgid\" or \"msgstr\"");
      *part_ += Quoted(line);
    } else {
      Keyword(line);
    }
  }

  Translations Done() {
    Finish();
    return std::move(translations_);
  }

 private:
  [[noreturn]] void Fail(const std::string& reason) const {
    throw orvik::HostError(orvik::HostError::kPathError, "OrvikTypeLib.LanguageService",
                           name_ + ", line " + std::to_string(number_) + ": " + reason);
  }

  void Comment(std::string_view line) {
    // A comment after a translation begins the next entry.
    if (text_) Finish();
    if (line.starts_with("#,") && line.find("fuzzy") != std::string_view::npos) fuzzy_ = true;
  }

  void Keyword(std::string_view line) {
    const auto blank = line.find_first_of(" \t\"");
    const auto word = line.substr(0, blank);
    if (word != "msgctxt" && word != "msgid" && word != "msgstr")
      Fail("\"" + std::string(word) + "\" is not known here");
    // An entry begins with "msgctxt", or with "msgid" when it has none.
    if (text_ && word != "msgstr") Finish();
    auto& part = word == "msgctxt" ? context_ : word == "msgid" ? original_ : text_;
    if (part) Fail("a second \"" + std::string(word) + "\" in one entry");
    const auto quote = line.find('"');
    if (quote == std::string_view::npos) Fail("the text is not in quotation marks");
    part = Quoted(line.substr(quote));
    part_ = &part.value();
  }

  std::string Quoted(std::string_view line) const {
    if (line.size() < 2 || line.back() != '"') Fail("the closing quotation mark is missing");
    line = line.substr(1, line.size() - 2);
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
      if (line[i] == '"') Fail("a quotation mark inside the text has no \"\\\" before it");
      if (line[i] != '\\') {
        text += line[i];
        continue;
      }
      if (++i == line.size()) Fail("the closing quotation mark is missing");
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
          Fail(std::string("\"\\") + line[i] + "\" is not known");
      }
    }
    return text;
  }

  void Finish() {
    if ((context_ || original_) && !text_) Fail("the entry has no \"msgstr\"");
    // The entry without a number is the file's header.
    if (context_ && !fuzzy_ && !text_->empty()) {
      const auto number = WholeNumber(*context_);
      if (!number || *number < 0) Fail("the \"msgctxt\" of the entry is not a text number");
      if (!translations_.emplace(*number, *text_).second)
        Fail("the text " + *context_ + " is translated twice");
    }
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
  Translations translations_;
};

}  // namespace

Translations ReadTranslations(std::string_view text, const std::string& name) {
  Reader reader(name);
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    reader.Line(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return reader.Done();
}

}  // namespace bench
