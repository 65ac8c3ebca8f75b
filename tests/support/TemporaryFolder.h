#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "tests/support/ReadFile.h"

namespace support {

/// A new folder; the destructor removes it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "keld-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder: " + pattern);
    path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }
  /// The path of `name` in the folder.
  std::string Path(const std::string& name) const { return (path_ / name).string(); }
  /// Writes a file and returns its path.
  std::string Write(const std::string& name, std::string_view content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
    return Path(name);
  }
  /// The content of a file; empty if it cannot be read.
  std::string Read(const std::string& name) const { return ReadFile(path_ / name); }
  /// The number of entries.
  std::size_t Count() const {
    const std::filesystem::directory_iterator entries(path_);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
  }

 private:
  std::filesystem::path path_;
};

}  // namespace support
