#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace support {

/// The bytes of a file; empty if it cannot be read.
inline std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace support
