#pragma once

#include <memory>

namespace keld::results {
class XKELDResultView;
}

namespace orvik {
class ITgContentPane;
class ITgToolbar;
}  // namespace orvik

namespace orvik::platform {
class IForm;
}

namespace keld::ui {

/// Command numbers of the guide's toolbar.
enum TestGuideCommand : int {
  kCommandAbort = 101,
  kCommandPrevious = 102,
  kCommandNext = 103,
  kCommandStop = 201,
  kCommandPlay = 202,
  kCommandNotApplicable = 301,
  kCommandSkip = 302,
  kCommandTools = 501,
  kCommandCalibrate = 900,
};

/// The guide's form and the controls on it.
struct TestGuideWindow {
  std::shared_ptr<orvik::platform::IForm> Form;
  std::shared_ptr<orvik::ITgToolbar> xtbToolbar;
  std::shared_ptr<results::XKELDResultView> xrvResultView;
  std::shared_ptr<orvik::ITgContentPane> xtwWizard;
  std::shared_ptr<orvik::ITgContentPane> xstShowMTI;

  /// Adds the controls to the form and lays them out. A control that cannot be created stays empty: the
  /// operator must still be able to use the others and leave.
  void Build();
  /// Locks or unlocks the choice of tester: another tester's lead calibration would correct the readings of
  /// the one that is measuring.
  void LockInstrumentData(bool fLocked);
};

}  // namespace keld::ui
