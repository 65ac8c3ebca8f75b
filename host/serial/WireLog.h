#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/base/UniqueFd.h"
#include "host/serial/Wire.h"

namespace host::serial {

/// A file with one line for each event on the wire, "TIME DIRECTION TEXT".
///
/// TIME is UTC to the microsecond; DIRECTION is "sent", "recv", "lost" (a discarded line) or "note". Later
/// runs append. A file that would exceed `maxBytes` replaces FILE.1, and a new one starts; if FILE.1 is not a
/// wire log, it stays and the log ends.
class WireLog {
 public:
  static constexpr std::uint64_t kMaxBytes = 4 * 1024 * 1024;

  /// `HostError` 75 names the file if it cannot be opened for writing or has content that is not a wire log.
  explicit WireLog(std::string path, std::uint64_t maxBytes = kMaxBytes);

  /// Writes one record. An error does not stop the run; see `Failure`.
  void Write(const WireRecord& record);
  /// Writes a note.
  void Note(std::string_view text);

  /// Why the log cannot be written; empty while it can.
  const std::string& Failure() const { return failure_; }
  const std::string& Path() const { return path_; }

 private:
  void WriteLine(std::string_view direction, std::string_view bytes);
  /// Opens the file. Returns 0 or the system's error number.
  int Open();
  void Rotate();

  const std::string path_;
  const std::uint64_t maxBytes_;
  UniqueFd file_;
  std::uint64_t size_ = 0;
  std::string failure_;
};

}  // namespace host::serial
