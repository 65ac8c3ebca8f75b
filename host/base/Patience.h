#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "host/base/FileErrors.h"

namespace host {

/// The total time that this program waits for resources of other programs: documents, settings, archives,
/// ports. Zero unless set. There is one for the whole program.
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

/// The result of `attempt`, which is repeated on `BusyError` until the patience is used up.
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
