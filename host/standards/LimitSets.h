#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/standards/LimitSet.h"

namespace bench {

/// The sets of limits that lie as NAME.xml in some folders; a folder that is not there has none.
class LimitSets {
 public:
  struct Entry {
    std::filesystem::path file;
    std::optional<LimitSet> set;
    std::string fault;  ///< why it cannot be read, when `set` is none
  };

  explicit LimitSets(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

  /// All there are, folder by folder, each by name; those that cannot be read with the reason.
  std::vector<Entry> All() const;

  /// The set of that name; a text with a "/" or the ending ".xml" is the path of its file instead.
  /// `HostError` 75 when it cannot be read, 5 when there is none or more than one of that name.
  LimitSet Find(const std::string& nameOrPath) const;

 private:
  std::vector<std::filesystem::path> Files() const;

  std::vector<std::filesystem::path> folders_;
};

}  // namespace bench
