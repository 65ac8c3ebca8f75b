#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "host/app/SimulatedTester.h"
#include "host/serial/PortManager.h"

namespace bench {

/// The options that say which tester to use: --port, --simulate, --time-scale.
class TesterOptions {
 public:
  void Declare(CLI::App& command);

  /// Checks that they fit together. `InputError` otherwise.
  void Check() const;
  double TimeScale() const { return timeScale_; }

  /// Makes the tester ready and its port known: starts the simulated one, or sees to it that the device can
  /// be opened. `InputError` for a device that is not there or is none; `IncompleteError` for one that cannot
  /// be had now.
  void Connect(PortManager& ports);
  /// What to tell the person about the tester's time; empty when it is the wall's.
  std::string TimeRemark() const;

 private:
  void Probe() const;

  std::string port_;
  CLI::Option* simulate_ = nullptr;
  std::string profile_;
  double timeScale_ = 1.0;
  std::unique_ptr<SimulatedTester> simulated_;
};

}  // namespace bench
