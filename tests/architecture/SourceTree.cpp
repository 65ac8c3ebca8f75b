#include "tests/architecture/SourceTree.h"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <utility>

#include "tests/support/ReadFile.h"

namespace house {

namespace {

bool IsSkippedFolder(const std::filesystem::path& folder) {
  const std::string name = folder.filename().string();
  return name == "build" || name.starts_with('.');
}

bool IsSource(const std::filesystem::path& file) {
  return file.extension() == ".h" || file.extension() == ".cpp";
}

bool IsNameCharacter(char character) {
  return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

/// The include on a line; its name is empty if there is none.
Include IncludeOf(const std::string& line) {
  const auto mark = line.find_first_not_of(" \t");
  if (mark == std::string::npos || line[mark] != '#' || !HasWord(line, "include")) return {};
  const auto open = line.find_first_of("<\"");
  const auto close = line.find_first_of(">\"", open + 1);
  if (open == std::string::npos || close == std::string::npos) return {};
  return {line.substr(open + 1, close - open - 1), line[open] == '"'};
}

std::vector<SourceFile> ReadTree(const std::filesystem::path& root) {
  std::vector<SourceFile> files;
  for (auto entry = std::filesystem::recursive_directory_iterator(root); entry != end(entry); ++entry) {
    if (entry->is_directory() && IsSkippedFolder(entry->path())) entry.disable_recursion_pending();
    if (!entry->is_regular_file() || !IsSource(entry->path())) continue;
    files.push_back(MakeSourceFile(entry->path().lexically_relative(root).generic_string(),
                                   support::ReadFile(entry->path())));
  }
  std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
  return files;
}

}  // namespace

SourceFile MakeSourceFile(std::string path, std::string text) {
  SourceFile file;
  file.path = std::move(path);
  file.text = std::move(text);
  for (auto& line : Lines(file.text)) {
    auto include = IncludeOf(line);
    include.line = static_cast<int>(file.code.size()) + 1;
    if (!include.name.empty()) file.includes.push_back(std::move(include));
    file.code.push_back(line.substr(0, line.find("//")));
  }
  return file;
}

const std::vector<SourceFile>& Tree() {
  static const std::vector<SourceFile> tree = ReadTree(SOURCE_PATH);
  return tree;
}

std::string FolderOf(std::string_view path) {
  const std::size_t slash = path.find('/');
  return slash == std::string_view::npos ? std::string() : std::string(path.substr(0, slash));
}

bool IsHeader(std::string_view path) { return path.ends_with(".h"); }

bool IsPlugIn(std::string_view path) {
  const std::string folder = FolderOf(path);
  return folder == "plugin" || folder == "model" || folder == "instrument" || folder == "results" ||
         folder == "ui";
}

bool IsInsideLibrary(std::string_view path) {
  // These draw the bitmaps during the build.
  if (path.starts_with("resources/drawing/") || path == "resources/DrawBitmaps.cpp") return false;
  const std::string folder = FolderOf(path);
  return IsPlugIn(path) || folder == "resources" || folder == "OrvikTypeLib" || folder == "platform";
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

bool HasWord(std::string_view text, std::string_view word) {
  for (auto at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
    const auto after = at + word.size();
    if ((at == 0 || !IsNameCharacter(text[at - 1])) &&
        (after == text.size() || !IsNameCharacter(text[after])))
      return true;
  }
  return false;
}

}  // namespace house
