#pragma once

#include "tester/UniqueFd.h"

namespace sim {

/// SIGINT, SIGTERM and SIGHUP (unless it is ignored) as a descriptor that becomes readable, instead of the
/// end of the process.
class StopSignal {
 public:
  /// Blocks the signals for this process; to be made before any thread. Throws SystemFailure.
  StopSignal();

  int Fd() const { return fd_.Get(); }

 private:
  UniqueFd fd_;
};

/// Has the system send SIGTERM to this process when its parent (the thread that started it) ends; at once
/// when it has ended already. `parent` is the parent's process id as seen when the program began. Throws
/// SystemFailure.
void ExitWithParent(int parent);

}  // namespace sim
