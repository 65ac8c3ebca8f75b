#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace host::qt {

/// Sleeps in Qt's event dispatcher, which also watches our descriptors and timers. While Qt runs a loop of
/// its own (an open menu, a file dialog), it calls `serve` from there.
class EventDispatcher {
 public:
  /// @param untilWork returns the time until our next work is due
  /// @param serve processes pending work
  EventDispatcher(std::function<std::chrono::nanoseconds()> untilWork, std::function<void()> serve);
  ~EventDispatcher();
  EventDispatcher(const EventDispatcher&) = delete;
  EventDispatcher& operator=(const EventDispatcher&) = delete;

  void Watch(const std::vector<int>& descriptors);
  void WorkAdded();
  /// Ends a sleep in progress.
  void LookAgain();
  /// Throws an error of `serve` in a Qt loop inside the sleep.
  void Sleep(std::chrono::nanoseconds longest);
  /// Whether Qt's own loop is on the stack, so that widgets may be in use.
  bool BelowForeignLoop() const { return foreign_ > 0; }

 private:
  void Ready();
  bool FailedAbove() const { return error_ && foreign_ < errorDepth_; }
  void Serve();
  void StartWorkTimer();

  std::function<std::chrono::nanoseconds()> untilWork_;
  std::function<void()> serve_;
  std::map<int, std::unique_ptr<QSocketNotifier>> notifiers_;
  QTimer workTimer_;
  QTimer deadlineTimer_;
  // Ends the sleep in progress.
  bool ready_ = false;
  // Qt's loop level at the start of the sleep in progress.
  std::optional<int> level_;
  int foreign_ = 0;
  // An error thrown inside `errorDepth_` loops of Qt; it is thrown to the caller that waits outside them.
  std::exception_ptr error_;
  int errorDepth_ = 0;
};

}  // namespace host::qt
