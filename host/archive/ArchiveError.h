#pragma once

#include <stdexcept>
#include <string>

namespace bench {

/// What keeps the archive from doing what was asked: the message names the file or the URL (never its
/// password) and says what to do.
class ArchiveError : public std::runtime_error {
 public:
  enum class Kind {
    kUnreachable,  ///< the server, the folder, the permission, the room on the disk is missing
    kBusy,         ///< another program is using it
    kBadInput      ///< what was named is no archive, is damaged, or is of a newer version
  };

  ArchiveError(Kind kind, const std::string& message) : std::runtime_error(message), kind_(kind) {}

  Kind Why() const { return kind_; }

 private:
  Kind kind_;
};

}  // namespace bench
