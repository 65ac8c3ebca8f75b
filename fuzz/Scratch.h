#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace fuzz {

/// A folder for the files that a target reads; it goes with the program.
class Scratch {
 public:
  const std::filesystem::path& Folder() const { return folder_.Path(); }

  std::filesystem::path Write(const std::string& name, const std::string& contents) const {
    std::ofstream(Folder() / name, std::ios::binary) << contents;
    return Folder() / name;
  }

  std::string Read(const std::string& name) const {
    std::ostringstream contents;
    contents << std::ifstream(Folder() / name, std::ios::binary).rdbuf();
    return contents.str();
  }

 private:
  support::TemporaryFolder folder_;
};

}  // namespace fuzz
