#pragma once

#include <memory>
#include <string>

#include "host/bench/SimulatedTester.h"
#include "host/serial/PortManager.h"

namespace bench {

/// Which tester to use.
struct TesterChoice {
  std::string field;  ///< where it was chosen, "--port" or the name of a field: errors begin with it
  bool simulated = false;
  std::string port;        ///< serial device of a real one
  std::string profile;     ///< of a simulated one; empty for the simulator's own choice
  double timeScale = 1.0;  ///< how many times faster than the wall all pauses pass
};

/// A tester that is ready, and its port known; a simulated one ends with it.
class TesterConnection {
 public:
  /// Starts the simulated tester, or sees to it that the device can be opened. `InputError` for a device that
  /// is not there or is none; `IncompleteError` for one that cannot be had now, `BusyError` when another
  /// program holds it. All name the field.
  TesterConnection(const TesterChoice& choice, PortManager& ports);

  /// The serial device that the tester answers at.
  const std::string& Device() const { return device_; }
  /// Whether its readings are none of real equipment: whatever answers at a pseudo-terminal is a program.
  bool Simulated() const { return isSimulated_; }

 private:
  void Connect(const TesterChoice& choice, PortManager& ports);

  std::unique_ptr<SimulatedTester> simulated_;
  std::string device_;
  bool isSimulated_ = true;
};

/// "All pauses and time-outs are divided by 20. That is for simulated testers only."; empty when time is the
/// wall's.
std::string TimeScaleRemark(double timeScale);

/// The time scale as it was given, or as it was typed. `InputError` unless it is a number from 0.001 to
/// 1,000,000.
void RequireTimeScale(double timeScale);
void RequireTimeScale(const std::string& typed);

}  // namespace bench
