#pragma once

#include <stdexcept>
#include <string>

namespace host::archive {

/// An error of the archive. The message names the file or the URL (never its password) and says what to do.
class ArchiveError : public std::runtime_error {
 public:
  enum class Kind {
    kUnreachable,  ///< no server, folder, permission or disk space
    kBusy,         ///< another program is using it
    kBadInput      ///< not an archive, damaged, or of a newer version
  };

  ArchiveError(Kind kind, const std::string& message) : std::runtime_error(message), kind_(kind) {}

  Kind Why() const { return kind_; }

 private:
  Kind kind_;
};

}  // namespace host::archive
