#pragma once

#include <memory>
#include <string>

#include "host/bench/TesterConnection.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace host::cli {

/// Declares --time-scale. What it is given is checked as by `RequireTimeScale`.
void DeclareTimeScale(CLI::App& command, double& timeScale);

/// The options that say which tester to use: --port, --simulate, --time-scale.
class TesterOptions {
 public:
  void Declare(CLI::App& command);

  /// Checks that they fit together. `InputError` otherwise.
  void Check() const;
  double TimeScale() const { return choice_.timeScale; }

  /// Makes the tester ready, as `TesterConnection` does.
  const bench::TesterConnection& Connect(serial::PortManager& ports);
  /// The remark on the tester's time scale; empty in real time.
  std::string TimeRemark() const { return bench::TimeScaleRemark(choice_.timeScale); }

 private:
  bench::TesterChoice choice_;
  CLI::Option* simulate_ = nullptr;
  std::unique_ptr<bench::TesterConnection> connection_;
};

}  // namespace host::cli
