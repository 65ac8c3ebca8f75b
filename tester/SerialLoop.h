#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

#include "tester/Tester.h"
#include "tester/Trace.h"

namespace sim {

/// Joins a tester and a terminal on the real clock. Waits in the system, never in a loop of its own.
class SerialLoop {
 public:
  enum class End { Stopped, HungUp };

  /// What a client has not read yet is kept up to this size; what the tester says beyond it is lost.
  static constexpr std::size_t kMaxUnsent = 65536;

  /// `terminal` is a non-blocking descriptor, `stop` one that becomes readable when the loop is to end;
  /// `trace` may be null. All must outlive the loop.
  SerialLoop(Tester& tester, int terminal, int stop, Trace* trace);
  ~SerialLoop();

  /// Runs until `stop` is readable or a fault hangs up. Throws SystemFailure when the terminal fails.
  End Run();

  /// After a hang-up: how long until the cable is to be plugged in again; empty when that is for good.
  std::optional<std::chrono::microseconds> BackAfter() const { return backAfter_; }

 private:
  void SendDue();
  void Send(const std::string& bytes);
  void WriteUnsent();
  void Wait();
  void ReadArrived();
  void Note(std::string_view direction, std::string_view bytes);

  Tester& tester_;
  const int terminal_;
  const int stop_;
  Trace* const trace_;
  std::string unsent_;
  bool stopRequested_ = false;
  std::optional<std::chrono::microseconds> backAfter_;
};

}  // namespace sim
