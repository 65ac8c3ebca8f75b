#include "tests/house/SourceText.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace house {

namespace {

bool IsNameCharacter(char character) {
  return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  SourceText Read() {
    while (at_ < text_.size()) {
      if (Follows("//"))
        ReadLineComment();
      else if (Follows("/*"))
        ReadBlockComment();
      else if (text_[at_] == '"')
        ReadLiteral('"');
      else if (text_[at_] == '\'' && !IsDigitSeparator())
        ReadLiteral('\'');
      else if (text_[at_] == '\n')
        Pass();
      else
        TakePlainCode();
    }
    return std::move(parts_);
  }

 private:
  bool Follows(std::string_view mark) const { return text_.substr(at_).starts_with(mark); }

  /// A quotation mark inside a number, as in 1'000.
  bool IsDigitSeparator() const { return at_ > 0 && IsNameCharacter(text_[at_ - 1]) && !IsLiteralPrefix(); }

  /// Whether the word before the mark is a literal's prefix: u8, u, U, L, with or without R.
  bool IsLiteralPrefix() const {
    std::size_t begin = at_;
    while (begin > 0 && IsNameCharacter(text_[begin - 1])) --begin;
    const std::string_view word = text_.substr(begin, at_ - begin);
    for (const std::string_view prefix : {"u8", "u", "U", "L", "R", "u8R", "uR", "UR", "LR"})
      if (word == prefix) return true;
    return false;
  }

  bool IsRaw() const { return at_ > 0 && text_[at_ - 1] == 'R' && IsLiteralPrefix(); }

  void Take(std::string& part) { part += text_[at_++]; }

  /// Code up to where a comment, a literal or a line end may begin.
  void TakePlainCode() {
    const std::size_t end = std::min(text_.find_first_of("/\"'\n", at_ + 1), text_.size());
    parts_.code += text_.substr(at_, end - at_);
    at_ = end;
  }

  /// Passes one character by; its line break stays in both parts.
  void Pass() {
    if (text_[at_] == '\n') {
      parts_.code += '\n';
      parts_.comments += '\n';
    }
    ++at_;
  }

  void ReadLineComment() {
    const std::size_t end = std::min(text_.find('\n', at_), text_.size());
    parts_.comments += text_.substr(at_, end - at_);
    at_ = end;
  }

  void ReadBlockComment() {
    const std::size_t end = text_.find("*/", at_ + 2);
    const std::size_t after = end == std::string_view::npos ? text_.size() : end + 2;
    parts_.code += ' ';
    while (at_ < after) {
      if (text_[at_] == '\n')
        Pass();
      else
        Take(parts_.comments);
    }
  }

  void ReadLiteral(char mark) {
    if (mark == '"' && IsRaw()) return ReadRawLiteral();
    parts_.code += mark;
    ++at_;
    while (at_ < text_.size() && text_[at_] != mark && text_[at_] != '\n') {
      if (text_[at_] == '\\' && at_ + 1 < text_.size()) Pass();
      Pass();
    }
    if (at_ < text_.size() && text_[at_] == mark) Take(parts_.code);
  }

  void ReadRawLiteral() {
    const std::size_t open = text_.find('(', at_);
    const std::string closing = open == std::string_view::npos
                                    ? ")\""
                                    : ")" + std::string(text_.substr(at_ + 1, open - at_ - 1)) + "\"";
    const std::size_t end = text_.find(closing, at_);
    const std::size_t after = end == std::string_view::npos ? text_.size() : end + closing.size();
    while (at_ < after) Pass();
    parts_.code += "\"\"";
  }

  std::string_view text_;
  std::size_t at_ = 0;
  SourceText parts_;
};

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())) != 0) text.remove_prefix(1);
  return text;
}

/// The include that a line of code and the same line with its literals tell; empty name when it is none.
Include IncludeOf(std::string_view codeLine, std::string_view fullLine) {
  codeLine = Trimmed(codeLine);
  if (!codeLine.starts_with('#') || !Trimmed(codeLine.substr(1)).starts_with("include")) return {};
  const std::size_t open = fullLine.find_first_of("<\"");
  if (open == std::string_view::npos) return {};
  const bool quoted = fullLine[open] == '"';
  const std::size_t close = fullLine.find(quoted ? '"' : '>', open + 1);
  if (close == std::string_view::npos) return {};
  return {std::string(fullLine.substr(open + 1, close - open - 1)), quoted, 0};
}

}  // namespace

SourceText TakeApart(std::string_view text) { return Reader(text).Read(); }

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

std::vector<Include> Includes(std::string_view text, const SourceText& parts) {
  const auto code = Lines(parts.code);
  const auto full = Lines(text);
  std::vector<Include> includes;
  for (std::size_t line = 0; line < code.size() && line < full.size(); ++line) {
    Include include = IncludeOf(code[line], full[line]);
    if (include.name.empty()) continue;
    include.line = static_cast<int>(line) + 1;
    includes.push_back(std::move(include));
  }
  return includes;
}

bool HasWord(std::string_view code, std::string_view word) {
  for (std::size_t at = code.find(word); at != std::string_view::npos; at = code.find(word, at + 1)) {
    const std::size_t after = at + word.size();
    const bool wholeBefore = at == 0 || !IsNameCharacter(code[at - 1]);
    const bool wholeAfter = after == code.size() || !IsNameCharacter(code[after]);
    if (wholeBefore && wholeAfter) return true;
  }
  return false;
}

}  // namespace house
