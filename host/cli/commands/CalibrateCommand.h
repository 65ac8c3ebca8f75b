#pragma once

#include <string>

#include "host/cli/commands/Command.h"
#include "host/cli/options/TesterOptions.h"

namespace host::bench {
class CalibrationWindow;
}

namespace host::cli {

/// `calibrate`: has the tester measure the resistance of its test leads, and stores it under its serial
/// number; with --list, shows the values that are stored.
class CalibrateCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  void List(const bench::GlobalOptions& options) const;
  void Measure(const bench::GlobalOptions& options);
  void Operate(bench::Workbench& workbench, bench::CalibrationWindow& window) const;

  TesterOptions tester_;
  std::string serial_;
  bool list_ = false;
  bool json_ = false;
};

}  // namespace host::cli
