#pragma once

#include <csignal>
#include <functional>
#include <utility>
#include <vector>

#include "platform/Event.h"

namespace toolkit::headless {
class Application;
}

namespace host::run {

/// Turns SIGINT, SIGTERM and SIGHUP into calls on the user-interface thread, and ignores SIGPIPE, so that a
/// closed output cannot end the program while a session is open. One instance per process; its destructor
/// restores the earlier handlers. A SIGHUP that is ignored at the start, as under "nohup", stays ignored.
class StopSignals {
 public:
  /// @param stop called with the signal's number while messages are processed, once a signal
  StopSignals(toolkit::headless::Application& application, std::function<void(int signal)> stop);
  StopSignals(const StopSignals&) = delete;
  StopSignals& operator=(const StopSignals&) = delete;
  ~StopSignals();

 private:
  void Install(int signal, void (*handler)(int));
  void Deliver();

  std::function<void(int)> stop_;
  std::vector<std::pair<int, struct sigaction>> before_;  ///< earlier handlers
  orvik::platform::Subscription woken_;
};

}  // namespace host::run
