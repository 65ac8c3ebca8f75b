#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "host/base/FileErrors.h"

namespace host {

/// How long this program waits in all for what another program holds: documents, settings, archives, ports.
/// Not at all unless it was set. One for the program.
class Patience {
 public:
  using Remark = std::function<void(const std::string& reason)>;

  /// @param remark is given the reason when waiting for something begins
  static void Set(std::chrono::milliseconds time, Remark remark);

  /// Sleeps for a moment before another attempt. False when the time is used up, or when a signal arrives:
  /// the attempt is then given up.
  /// @param reason what is held, and by whom
  static bool WaitsFor(const std::string& reason);
};

/// The result of the attempt, which is made again while it ends with `BusyError` and the patience lasts.
template <class Attempt>
auto WaitUntilFree(Attempt attempt) {
  while (true) {
    try {
      return attempt();
    } catch (const BusyError& busy) {
      if (!Patience::WaitsFor(busy.Description())) throw;
    }
  }
}

}  // namespace host
