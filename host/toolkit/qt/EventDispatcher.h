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

namespace bench::qt {

/// Sleeps in Qt's event dispatcher, with our descriptors and times in it. When Qt's own loop runs (an open
/// menu, a file dialog), it has the application served from there.
class EventDispatcher {
 public:
  /// @param untilWork how long until something of ours falls due
  /// @param serve processes what is pending
  EventDispatcher(std::function<std::chrono::nanoseconds()> untilWork, std::function<void()> serve);
  ~EventDispatcher();
  EventDispatcher(const EventDispatcher&) = delete;
  EventDispatcher& operator=(const EventDispatcher&) = delete;

  void Watch(const std::vector<int>& descriptors);
  void WorkAdded();
  /// A sleep that is on ends at once.
  void LookAgain();
  /// Throws what was thrown while Qt's own loop ran inside the sleep.
  void Sleep(std::chrono::nanoseconds longest);
  /// Whether Qt's own loop runs below us, so that widgets may be in use on the stack.
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
  // Ends the sleep that is on.
  bool ready_ = false;
  // How deep Qt's loops were when the sleep began that is on.
  std::optional<int> level_;
  int foreign_ = 0;
  // What was thrown below that many of Qt's own loops; it goes to whoever waits above them.
  std::exception_ptr error_;
  int errorDepth_ = 0;
};

}  // namespace bench::qt
