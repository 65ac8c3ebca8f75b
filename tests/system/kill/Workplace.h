#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "tests/system/kill/Moment.h"

namespace kill_test {

/// A folder with a state and documents of its own, in which orvik-bench is run.
class Workplace {
 public:
  explicit Workplace(std::filesystem::path folder);

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  /// The words that start orvik-bench on this state.
  std::vector<std::string> Words(const std::vector<std::string>& words) const;
  /// Runs it to its end; `std::runtime_error` with what it says when it does not end with 0.
  std::string Bench(const std::vector<std::string>& words) const;
  std::string Contents(const std::string& name) const;

  /// The same in another folder.
  Workplace CopyTo(const std::filesystem::path& folder) const;
  const std::filesystem::path& Folder() const { return folder_; }

 private:
  std::filesystem::path folder_;
};

/// A folder in memory where there is one: it is the killing that is tried here and not the disk, and flushes
/// to a disk would leave hardly any other moment to be killed at.
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
