#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace house {

/// One `#include` line.
struct Include {
  std::string name;
  bool quoted = false;  ///< "name", not <name>
  int line = 0;         ///< from 1
};

/// One C++ file of the repository.
struct SourceFile {
  std::string path;  ///< from the repository's root, with '/'
  std::string text;
  std::vector<std::string> code;  ///< its lines without line ends and without comments that begin with "//"
  std::vector<Include> includes;
};

/// A file made from a text, to try a rule on an example.
SourceFile MakeSourceFile(std::string path, std::string text);

/// All headers and sources of the repository, sorted by path, read once. Build folders and hidden folders are
/// left out.
const std::vector<SourceFile>& Tree();

/// The first folder of a path; empty for a file in the root.
std::string FolderOf(std::string_view path);

bool IsHeader(std::string_view path);

/// Whether the file is in one of the plug-in's five folders.
bool IsPlugIn(std::string_view path);

/// Whether the file ends up inside the plug-in library: its five folders, the resources, the contract and the
/// platform's part of it.
bool IsInsideLibrary(std::string_view path);

/// The lines of a text, without their ends.
std::vector<std::string> Lines(const std::string& text);

/// Whether `word` is in `text` as a whole: no letter, digit or underscore right before or after it.
bool HasWord(std::string_view text, std::string_view word);

}  // namespace house
