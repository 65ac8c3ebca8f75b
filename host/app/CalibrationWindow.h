#pragma once

#include <memory>
#include <optional>
#include <string>

#include "OrvikTypeLib/IDialogForm.h"
#include "host/app/Workbench.h"
#include "host/run/DoubtTracker.h"

namespace bench {

/// The plug-in's window for the calibration of the test leads, operated by the program (calibrate, then save,
/// or cancel when there is nothing to be relied on) or by a person.
class CalibrationWindow {
 public:
  struct Saved {
    std::string type;
    std::string serial;
    std::string value;  ///< mOhm
  };

  /// @param serial the serial number to store the value under; empty for the one that the tester tells
  CalibrationWindow(Workbench& workbench, std::string serial);

  /// Operates the window. Returns when it is closed and the session with the tester is over.
  void Run();
  /// Leaves the window to the person before the screen; a measurement that is doubtful closes it, and
  /// `Reason` tells. Returns as `Run` does.
  void Show();
  /// What was stored; none when nothing was: `Reason`.
  const std::optional<Saved>& Stored() const { return stored_; }
  const std::string& Reason() const { return reason_; }

  /// Leaves the window without storing anything.
  void Cancel();

 private:
  void Operate();
  void DoubtTooMuch();
  void RefuseDoubtful();
  std::string Obstacle() const;

  Workbench& workbench_;
  const std::string serial_;
  DoubtTracker doubts_;
  orvik::platform::Subscription heard_;
  std::shared_ptr<orvik::IDialogForm> dialog_;
  std::shared_ptr<orvik::platform::IForm> form_;
  std::optional<Saved> stored_;
  std::string reason_;
  bool cancelled_ = false;
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace bench
