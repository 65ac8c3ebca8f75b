#pragma once

#include <memory>

#include "OrvikTypeLib/ITgProgressBar.h"
#include "platform/Controls.h"
#include "platform/IForm.h"

namespace keld::instrument {

/// The controls of the lead calibration window.
struct CalibrationControls {
  std::shared_ptr<orvik::platform::ILabel> lblHlpTxt;
  std::shared_ptr<orvik::platform::ITextBox> txtSerial;
  std::shared_ptr<orvik::platform::ITextBox> txtMTIType;
  std::shared_ptr<orvik::platform::ILabel> lblValue;
  /// The current state; `lblHlpTxt` holds the instructions.
  std::shared_ptr<orvik::platform::ILabel> lblStatus;
  /// Empty when the host has no such control.
  std::shared_ptr<orvik::ITgProgressBar> xpbProgress;
  std::shared_ptr<orvik::platform::IButton> cmdCalibrate;
  std::shared_ptr<orvik::platform::IButton> cmdSave;
  std::shared_ptr<orvik::platform::IButton> cmdCancel;

  /// Adds the controls to the form, with translated captions and tool tips, and lays them out.
  static CalibrationControls AddTo(const std::shared_ptr<orvik::platform::IForm>& Form);
};

}  // namespace keld::instrument
