#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/standards/LimitSet.h"

namespace host::standards {

/// The sets of limits in some folders, each a file NAME.xml. A missing folder has none.
class LimitSets {
 public:
  struct Entry {
    std::filesystem::path file;
    std::optional<LimitSet> set;
    std::string fault;  ///< why it cannot be read; empty with a `set`
  };

  explicit LimitSets(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

  /// All sets, folder by folder, sorted by name; unreadable ones with the reason.
  std::vector<Entry> All() const;

  /// The set with that name; a text with a "/" or the extension ".xml" is the path of its file.
  /// Throws `HostError` 75 when it cannot be read, 5 when the name is unknown or ambiguous.
  LimitSet Find(const std::string& nameOrPath) const;

 private:
  std::vector<std::filesystem::path> Files() const;

  std::vector<std::filesystem::path> folders_;
};

}  // namespace host::standards
