#pragma once

#include <string>
#include <string_view>

#include "tester/UniqueFd.h"

namespace sim {

/// A file with one line for each line of the wire: time (UTC), direction, text. Directions are "recv",
/// "sent", "lost" (received, and dropped), and "note" (what happened to the line itself). Control bytes
/// appear as \xNN.
class Trace {
 public:
  /// Adds to the file at `path`. Throws InputError when it cannot be opened.
  explicit Trace(const std::string& path);

  /// Writes one line at once, so that the trace is complete whenever it is read. `bytes` are those of the
  /// wire. Throws SystemFailure when the file cannot be written.
  void Write(std::string_view direction, std::string_view bytes);

 private:
  const std::string path_;
  UniqueFd file_;
};

}  // namespace sim
