#pragma once

#include <memory>
#include <optional>
#include <string>

#include "OrvikTypeLib/IDialogForm.h"
#include "host/app/Workbench.h"
#include "host/run/DoubtTracker.h"

namespace bench {

/// Operates the plug-in's window for the calibration of the test leads: calibrate, then save, or cancel when
/// there is nothing to be relied on.
class CalibrationWindow {
 public:
  struct Saved {
    std::string type;
    std::string serial;
    std::string value;  ///< mOhm
  };

  /// @param serial the serial number to store the value under; empty for the one that the tester tells
  CalibrationWindow(Workbench& workbench, std::string serial);

  /// Returns when the window is closed and the session with the tester is over.
  void Run();
  /// What was stored; none when nothing was: `Reason`.
  const std::optional<Saved>& Stored() const { return stored_; }
  const std::string& Reason() const { return reason_; }

  /// Leaves the window without storing anything.
  void Cancel();

 private:
  void Operate();
  std::string Obstacle() const;

  Workbench& workbench_;
  const std::string serial_;
  DoubtTracker doubts_;
  std::shared_ptr<orvik::IDialogForm> dialog_;
  std::shared_ptr<orvik::platform::IForm> form_;
  std::optional<Saved> stored_;
  std::string reason_;
  bool cancelled_ = false;
};

}  // namespace bench
