#include "tester/Manual.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#ifndef KELD_SIM_VERSION
#error "KELD_SIM_VERSION is to be set by the build"
#endif

namespace sim {

namespace {

constexpr std::size_t kWidth = 100;        // of --help
constexpr std::size_t kPageWidth = 70;     // of the manual page's source, before anything is escaped
constexpr std::size_t kTermColumn = 23;    // where the meaning of an option begins
constexpr std::size_t kNarrowColumn = 18;  // and that of other words

/// `text` in lines of at most `width` characters. The first one begins at `column`.
std::vector<std::string> Lines(std::string_view text, std::size_t width, std::size_t column = 0) {
  std::vector<std::string> lines(1);
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string word(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    std::string& last = lines.back();
    if (last.empty())
      last = word;
    else if (column + last.size() + 1 + word.size() > width)
      lines.push_back(word);
    else
      last += ' ' + word;
  }
  return lines;
}

/// The text beside a column that is `indent` wide.
std::string Indented(std::string_view text, std::size_t indent) {
  std::string block;
  for (const std::string& line : Lines(text, kWidth, indent))
    block += (block.empty() ? std::string() : std::string(indent, ' ')) + line + "\n";
  return block;
}

std::string ListInHelp(const std::vector<Manual::Entry>& list) {
  const bool wide = std::any_of(list.begin(), list.end(),
                                [](const auto& entry) { return entry.term.size() + 3 > kNarrowColumn; });
  const std::size_t column = wide ? kTermColumn : kNarrowColumn;
  std::string text;
  for (const auto& [term, meaning] : list) {
    std::string start = "  " + term;
    start.resize(std::max(column, start.size() + 1), ' ');
    text += start + Indented(meaning, column);
  }
  return text;
}

std::string UpperCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

/// Text as roff takes it literally.
std::string Roff(std::string_view text) {
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (text.substr(i, 2) == "µ") {
      escaped += "\\(mc";
      ++i;
    } else if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      escaped += "\\-";
    } else if (c == '\'') {
      escaped += "\\(aq";
    } else {
      escaped += c;
    }
  }
  if (escaped.starts_with('.')) escaped.insert(0, "\\&");
  return escaped;
}

std::string ParagraphInPage(std::string_view text) {
  std::string lines;
  for (const std::string& line : Lines(text, kPageWidth)) lines += Roff(line) + "\n";
  return lines;
}

std::string BlockInPage(const Manual::Block& block) {
  if (!block.paragraph.empty()) return ".PP\n" + ParagraphInPage(block.paragraph);
  std::string text;
  if (!block.example.empty()) {
    text += ".PP\n.nf\n.RS 4\n";
    for (const std::string& line : block.example) text += Roff(line) + "\n";
    return text + ".RE\n.fi\n";
  }
  for (const auto& [term, meaning] : block.list)
    text += ".TP\n\\fB" + Roff(term) + "\\fR\n" + ParagraphInPage(meaning);
  return text;
}

}  // namespace

std::string HelpText() {
  const Manual manual = TheManual();
  std::string text = "keld-sim: " + manual.purpose + "\n\nUsage: " + manual.synopsis + "\n";
  for (const auto& section : manual.sections) {
    text += "\n" + section.title + ":\n";
    for (const auto& block : section.blocks) {
      if (!block.paragraph.empty()) text += "  " + Indented(block.paragraph, 2);
      for (const std::string& line : block.example) text += "    " + line + "\n";
      text += ListInHelp(block.list);
    }
  }
  return text;
}

std::string ManualPage() {
  const Manual manual = TheManual();
  // The date stays out: the same sources give the same page.
  std::string page = ".TH KELD\\-SIM 1 \"\" \"keld\\-sim " KELD_SIM_VERSION "\" \"User Commands\"\n";
  page += ".SH NAME\nkeld\\-sim \\- " + Roff(manual.purpose) + "\n";
  page += ".SH SYNOPSIS\n" + Roff(manual.synopsis) + "\n";
  for (const auto& section : manual.sections) {
    page += ".SH " + UpperCase(section.title) + "\n";
    bool first = true;
    for (const auto& block : section.blocks) {
      std::string text = BlockInPage(block);
      // A heading begins a paragraph by itself.
      if (first && text.starts_with(".PP\n")) text.erase(0, 4);
      first = false;
      page += text;
    }
  }
  return page;
}

std::string VersionText() { return "keld-sim " KELD_SIM_VERSION "\n"; }

}  // namespace sim
