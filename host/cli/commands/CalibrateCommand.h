#pragma once

#include <string>

#include "host/cli/commands/Command.h"
#include "host/cli/options/TesterOptions.h"

namespace bench {

class CalibrationWindow;

/// `calibrate`: has the tester measure the resistance of its test leads, and stores it under its serial
/// number; with --list, shows the values that are stored.
class CalibrateCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  void List(const GlobalOptions& options) const;
  void Measure(const GlobalOptions& options);
  void Operate(Workbench& workbench, CalibrationWindow& window) const;

  TesterOptions tester_;
  std::string serial_;
  bool list_ = false;
  bool json_ = false;
};

}  // namespace bench
