#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "tests/system/kill/Moment.h"

namespace kill_test {

/// A folder with its own state and documents, in which orvik-bench runs.
class Workplace {
 public:
  explicit Workplace(std::filesystem::path folder);

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  /// The command line that starts orvik-bench with this state.
  std::vector<std::string> Words(const std::vector<std::string>& words) const;
  /// Runs it to its end. Throws `std::runtime_error` with its output unless the status is 0.
  std::string Bench(const std::vector<std::string>& words) const;
  std::string Contents(const std::string& name) const;

  /// Copies it to another folder.
  Workplace CopyTo(const std::filesystem::path& folder) const;
  const std::filesystem::path& Folder() const { return folder_; }

 private:
  std::filesystem::path folder_;
};

/// A folder in memory if possible: the tests kill programs, they do not test the disk. With a real disk
/// nearly every moment would be a flush.
class FastFolder {
 public:
  FastFolder();
  FastFolder(const FastFolder&) = delete;
  FastFolder& operator=(const FastFolder&) = delete;
  ~FastFolder();
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace kill_test
