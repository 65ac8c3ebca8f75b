#pragma once

#include <memory>
#include <string>

#include "host/bench/SimulatedTester.h"
#include "host/serial/PortManager.h"

namespace host::bench {

/// Which tester to use.
struct TesterChoice {
  std::string field;  ///< where it was chosen, "--port" or the name of a field: errors begin with it
  bool simulated = false;
  std::string port;        ///< serial device of a real one
  std::string profile;     ///< of a simulated one; empty for the simulator's own choice
  double timeScale = 1.0;  ///< how many times faster than the wall all pauses pass
};

/// A tester that is ready for use. Ends a simulated one when destroyed.
class TesterConnection {
 public:
  /// Starts the simulated tester, or checks that the device can be opened. `InputError` when the device does
  /// not exist or is not a serial device; `IncompleteError` when it is not available now; `BusyError` when
  /// another program uses it. All name the field.
  TesterConnection(const TesterChoice& choice, serial::PortManager& ports);

  /// The serial device that the tester answers at.
  const std::string& Device() const { return device_; }
  /// Whether no real equipment is measured. Behind a pseudo-terminal there is always a program.
  bool Simulated() const { return isSimulated_; }

 private:
  void Connect(const TesterChoice& choice, serial::PortManager& ports);

  std::unique_ptr<SimulatedTester> simulated_;
  std::string device_;
  bool isSimulated_ = true;
};

/// "All pauses and time-outs are divided by 20. That is for simulated testers only."; empty in real
/// time.
std::string TimeScaleRemark(double timeScale);

/// The time scale as it was given, or as it was typed. `InputError` unless it is a number from 0.001 to
/// 1,000,000.
void RequireTimeScale(double timeScale);
void RequireTimeScale(const std::string& typed);

}  // namespace host::bench
