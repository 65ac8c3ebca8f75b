#include "instrument/CalibrationControls.h"

#include <string>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "platform/IContainerSite.h"
#include "platform/IUserControl.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"

namespace keld::instrument {

namespace platform = orvik::platform;
namespace Texts = MKELDLanguageConstants;

namespace {

constexpr platform::Twips kWidth = 1500;
constexpr platform::Twips kFrameEdge = 60;

/// Guidance, identity, the framed value, progress, buttons.
platform::Grid Layout() {
  using platform::Alignment;
  platform::Grid grid;
  grid.rows = {{}, {}, {}, {kFrameEdge, 0}, {}, {kFrameEdge, 0}, {}, {}, {}};
  grid.columns = {{kWidth, 1}, {kWidth, 1}, {kWidth, 1}};
  grid.cells = {{"lblHlpTxt", 0, 0, 1, 3},
                {"lblSerial", 1, 0},
                {"txtSerial", 1, 1, 1, 2},
                {"lblMTIType", 2, 0},
                {"txtMTIType", 2, 1, 1, 2},
                {"pboCalibData", 3, 0, 3, 3},
                {"lblValue", 4, 0, 1, 1, false, Alignment::kRight},
                {"lblMilli", 4, 1, 1, 1, false, Alignment::kRight},
                {"lblOhm", 4, 2, 1, 1, false, Alignment::kLeft},
                {"lblStatus", 6, 0, 1, 3},
                {"cmdCalibrate", 8, 0},
                {"cmdSave", 8, 1},
                {"cmdCancel", 8, 2}};
  return grid;
}

}  // namespace

CalibrationControls CalibrationControls::AddTo(const std::shared_ptr<platform::IForm>& Form) {
  CalibrationControls controls;
  platform::Grid grid = Layout();
  Form->SetCaption(Texts::kCalibrationTitle);

  controls.lblHlpTxt = Form->AddLabel("lblHlpTxt");
  controls.lblHlpTxt->SetCaption(Texts::kCalibrationGuidance);
  Form->AddLabel("lblSerial")->SetCaption(Texts::kSerialNumber);
  controls.txtSerial = Form->AddTextBox("txtSerial");
  Form->AddLabel("lblMTIType")->SetCaption(Texts::kMtiType);
  controls.txtMTIType = Form->AddTextBox("txtMTIType");
  controls.txtMTIType->SetLocked(true);

  // The frame is added first, so that it is behind its contents.
  Form->AddFrame("pboCalibData");
  controls.lblValue = Form->AddLabel("lblValue");
  Form->AddLabel("lblMilli")->SetCaption("m");
  Form->AddLabel("lblOhm")->SetCaption("Ohm");

  controls.lblStatus = Form->AddLabel("lblStatus");
  Attempt([&] {
    const auto site = Form->AddControl(orvik::HostClasses::kProgressBar, "xpbProgress");
    grid.cells.push_back({"xpbProgress", 7, 0, 1, 3});
    controls.xpbProgress = orvik::As<orvik::ITgProgressBar>(orvik::Required(site).Object());
  });

  controls.cmdCalibrate = Form->AddButton("cmdCalibrate");
  controls.cmdCalibrate->SetCaption(Texts::kCalibrate);
  controls.cmdSave = Form->AddButton("cmdSave");
  controls.cmdSave->SetCaption(Texts::kSaveAndClose);
  controls.cmdSave->SetEnabled(false);
  controls.cmdCancel = Form->AddButton("cmdCancel");
  controls.cmdCancel->SetCaption(Texts::kCancel);

  MKELDGlobalVars::TranslateCaptions(Form);
  controls.cmdCalibrate->SetToolTip(MKELDGlobalVars::Shown(Texts::kCalibrateToolTip));
  controls.cmdSave->SetToolTip(MKELDGlobalVars::Shown(Texts::kSaveToolTip));
  controls.cmdCancel->SetToolTip(MKELDGlobalVars::Shown(Texts::kCancelToolTip));
  Form->SetGrid(grid);
  return controls;
}

}  // namespace keld::instrument
