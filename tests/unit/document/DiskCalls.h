#pragma once

namespace support {

/// While it lives, folders cannot be flushed to disk.
class FoldersCannotBeFlushed {
 public:
  FoldersCannotBeFlushed() { Now() = true; }
  FoldersCannotBeFlushed(const FoldersCannotBeFlushed&) = delete;
  FoldersCannotBeFlushed& operator=(const FoldersCannotBeFlushed&) = delete;
  ~FoldersCannotBeFlushed() { Now() = false; }

  static bool& Now() {
    static bool now = false;
    return now;
  }
};

}  // namespace support
