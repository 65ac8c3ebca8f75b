#include "tests/system/languages/Languages.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace languages {

namespace {

std::string Unescaped(const std::string& line) {
  const auto begin = line.find('"'), end = line.rfind('"');
  if (begin == std::string::npos || end <= begin) throw std::runtime_error("no text in \"" + line + "\"");
  std::string text;
  for (auto i = begin + 1; i < end; ++i) {
    if (line[i] != '\\') {
      text += line[i];
    } else {
      ++i;
      text += line[i] == 'n' ? '\n' : line[i] == 't' ? '\t' : line[i];
    }
  }
  return text;
}

}  // namespace

std::vector<Entry> EntriesOf(const std::filesystem::path& file) {
  std::ifstream in(file);
  if (!in) throw std::runtime_error(file.string() + " cannot be read");
  std::vector<Entry> entries;
  Entry entry;
  std::string* part = nullptr;
  std::size_t number = 0;
  const auto finish = [&] {
    if (!entry.english.empty()) entries.push_back(entry);
    entry = {};
    part = nullptr;
  };
  for (std::string line; std::getline(in, line);) {
    ++number;
    if (line.empty()) {
      finish();
    } else if (line[0] == '#') {
      if (line.starts_with("#,") && line.find("fuzzy") != std::string::npos) entry.fuzzy = true;
    } else {
      if (line.starts_with("msgctxt")) part = &entry.context;
      if (line.starts_with("msgid")) part = &entry.english;
      if (line.starts_with("msgstr")) part = &entry.translated;
      if (line.starts_with("msgid")) entry.line = number;
      if (!part) throw std::runtime_error(file.string() + ": " + line);
      *part += Unescaped(line);
    }
  }
  finish();
  return entries;
}

std::string Contents(const std::filesystem::path& file) {
  std::ifstream in(file);
  if (!in) throw std::runtime_error(file.string() + " cannot be read");
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

}  // namespace languages
