#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tests/house/SourceText.h"

namespace house {

/// One C++ file of the repository.
struct SourceFile {
  std::string path;  ///< from the repository's root, with '/'
  std::string text;
  SourceText parts;
  std::vector<Include> includes;
};

/// A file made from a text, for trying a rule on an example.
SourceFile MakeSourceFile(std::string path, std::string text);

/// All headers and sources below `root`, sorted by path; build folders and hidden folders are left out.
/// @throws std::runtime_error naming the file that cannot be read
std::vector<SourceFile> ReadTree(const std::filesystem::path& root);

/// The repository itself, read once.
const std::vector<SourceFile>& Tree();

/// The first folder of a path; empty for a file in the root.
std::string FolderOf(std::string_view path);

bool IsHeader(std::string_view path);

/// Whether the file is in one of the plug-in's five folders.
bool IsPlugIn(std::string_view path);

/// Whether the file ends up inside the plug-in library: its five folders, the resources, the contract and the
/// platform's part of it.
bool IsInsideLibrary(std::string_view path);

/// A whole file as text.
/// @throws std::runtime_error naming the file that cannot be read
std::string ReadText(const std::filesystem::path& file);

}  // namespace house
