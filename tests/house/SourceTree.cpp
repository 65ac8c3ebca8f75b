#include "tests/house/SourceTree.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace house {

namespace {

bool IsSkippedFolder(const std::filesystem::path& folder) {
  const std::string name = folder.filename().string();
  return name == "build" || name.starts_with('.');
}

bool IsSource(const std::filesystem::path& file) {
  return file.extension() == ".h" || file.extension() == ".cpp";
}

}  // namespace

std::string ReadText(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  if (!stream || (stream.peek() != EOF && !(text << stream.rdbuf())))
    throw std::runtime_error("cannot read " + file.string());
  return std::move(text).str();
}

SourceFile MakeSourceFile(std::string path, std::string text) {
  SourceFile file;
  file.path = std::move(path);
  file.parts = TakeApart(text);
  file.includes = Includes(text, file.parts);
  file.text = std::move(text);
  return file;
}

std::vector<SourceFile> ReadTree(const std::filesystem::path& root) {
  std::vector<SourceFile> files;
  for (auto entry = std::filesystem::recursive_directory_iterator(root); entry != end(entry); ++entry) {
    if (entry->is_directory() && IsSkippedFolder(entry->path())) entry.disable_recursion_pending();
    if (!entry->is_regular_file() || !IsSource(entry->path())) continue;
    files.push_back(
        MakeSourceFile(entry->path().lexically_relative(root).generic_string(), ReadText(entry->path())));
  }
  std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
  return files;
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
  // What draws the bitmaps runs while building and is no part of the library.
  if (path.starts_with("resources/drawing/") || path == "resources/DrawBitmaps.cpp") return false;
  const std::string folder = FolderOf(path);
  return IsPlugIn(path) || folder == "resources" || folder == "OrvikTypeLib" || folder == "platform";
}

}  // namespace house
