#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/serial/UniqueFd.h"
#include "host/serial/Wire.h"

namespace bench {

/// The log of the wire: a file with one line for each thing that happened, "TIME DIRECTION TEXT".
///
/// TIME is UTC to the microsecond; DIRECTION is "sent", "recv", "lost" (a dropped line) or "note". Later runs
/// add to the file. Once it is larger than `maxBytes` it becomes FILE.1, in the place of an older one, and a
/// new one is begun; a FILE.1 that is not a wire log stays, and the log ends there.
class WireLog {
 public:
  static constexpr std::uint64_t kMaxBytes = 4 * 1024 * 1024;

  /// `HostError` 75 naming the file when it cannot be opened for writing, or holds anything else than a wire
  /// log; it is left as it is then.
  explicit WireLog(std::string path, std::uint64_t maxBytes = kMaxBytes);

  /// Writes one record. A log that cannot be written does not disturb the run: `Failure` tells.
  void Write(const WireRecord& record);
  /// Writes a remark.
  void Note(std::string_view text);

  /// Why the log could not be written; empty as long as it could.
  const std::string& Failure() const { return failure_; }
  const std::string& Path() const { return path_; }

 private:
  void WriteLine(std::string_view direction, std::string_view bytes);
  int Open();
  void Rotate();

  const std::string path_;
  const std::uint64_t maxBytes_;
  UniqueFd file_;
  std::uint64_t size_ = 0;
  std::string failure_;
};

}  // namespace bench
