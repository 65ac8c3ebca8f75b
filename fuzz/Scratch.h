#pragma once

#include <filesystem>
#include <string>

#include "tests/support/ReadFile.h"
#include "tests/support/TemporaryFolder.h"

namespace fuzz {

/// A folder for the files that a target reads; removed when the program ends.
class Scratch {
 public:
  const std::filesystem::path& Folder() const { return folder_.Path(); }

  std::filesystem::path Write(const std::string& name, const std::string& contents) const {
    return folder_.Write(name, contents);
  }

  std::string Read(const std::string& name) const { return support::ReadFile(Folder() / name); }

 private:
  support::TemporaryFolder folder_;
};

}  // namespace fuzz
