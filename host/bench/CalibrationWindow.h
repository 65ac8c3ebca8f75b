#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IDialogForm.h"
#include "host/bench/Workbench.h"

namespace host::bench {

/// The plug-in's dialog for the calibration of the test leads, operated by the program (calibrate, then save)
/// or by a person. `Workbench::Leads` closes it when the measurement cannot be used, and holds what was
/// stored.
class CalibrationWindow {
 public:
  /// @param serial the serial number to store the value under; empty for the one that the tester reports
  CalibrationWindow(Workbench& workbench, std::string serial);

  /// Operates the dialog. Returns when it is closed and the session with the tester is over.
  void Run();
  /// Leaves the dialog to the person at the screen. Returns as `Run` does.
  void Show();

  /// Closes the dialog; nothing is stored.
  void Cancel() { workbench_.Leads().Cancel(); }

  /// The tester's type, as the tester reports it; empty before it did.
  std::string TesterType() const;
  /// Why nothing was stored; empty when a value was.
  std::string Reason() const;

 private:
  void Operate();

  Workbench& workbench_;
  const std::string serial_;
  std::shared_ptr<orvik::IDialogForm> dialog_;
  std::shared_ptr<orvik::platform::IForm> form_;
  std::string obstacle_;
};

}  // namespace host::bench
