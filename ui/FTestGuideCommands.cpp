#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITgToolbar.h"
#include "instrument/FCalibrateLeads.h"
#include "model/IKELDTest.h"
#include "platform/IForm.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "results/XKELDResultView.h"
#include "ui/FTestGuide.h"

// What the operator's buttons do.
namespace keld::ui {

using orvik::As;
using orvik::Required;

namespace {

constexpr int kRightButton = 2;

bool ActsDuringRun(std::int32_t lCommand) {
  return lCommand == kCommandAbort || lCommand == kCommandStop || lCommand == kCommandPlay;
}

std::int32_t OptionsOf(const std::shared_ptr<orvik::ITestElement>& iteElement) {
  return AttemptValue(std::int32_t{0}, [&] {
    return Required(As<configuration::CKELDTestConfiguration>(Required(iteElement).Configuration()))
        .Options();
  });
}

}  // namespace

void FTestGuide::ITgToolbarEvents_OnCommand(std::int32_t lCommand) {
  const auto Self = shared_from_this();
  const auto Test = mTest.lock();
  if (!Test || (fRunning && !ActsDuringRun(lCommand))) return;
  switch (lCommand) {
    case kCommandAbort:
      return Abort();
    case kCommandPrevious:
      return Test->PrevTest();
    case kCommandNext:
      return Test->NextTest();
    case kCommandStop:
      return StopRoutine();
    case kCommandPlay:
      return Play();
    case kCommandNotApplicable:
      return Test->NATest();
    case kCommandSkip:
      return Test->SkipTest();
    case kCommandCalibrate:
      return CalibrateRoutine();
    default:
      return;
  }
}

void FTestGuide::OnCloseRequested(bool& fKeepOpen) {
  // Without a test there is nothing to abort.
  if (mTest.expired()) return;
  fKeepOpen = true;
  Abort();
}

void FTestGuide::Abort() {
  const auto Test = mTest.lock();
  if (!Test || fAborting) return;
  fAborting = true;
  Attempt([&] { Test->AbortTest(); });
  fAborting = false;
}

void FTestGuide::Play() {
  if (fRunning) return StopRoutine();
  if (!FinishedHere()) return RunRoutine();
  if (const auto Test = mTest.lock()) Test->NextTest();
}

bool FTestGuide::FinishedHere() const {
  if (!fRanHere) return false;
  const std::int32_t lStatus = AttemptValue(std::int32_t{orvik::ResultStatus::kNotTested}, [&] {
    const auto Result = Required(mElement)->Result();
    return Required(Result).Status();
  });
  return lStatus == orvik::ResultStatus::kPassed || lStatus == orvik::ResultStatus::kNotApplicable;
}

void FTestGuide::RunRoutine() {
  const auto Test = mTest.lock();
  if (!Test) return;
  fRunning = true;
  Attempt([&] { SetButtons(); });
  Attempt([&] { SetStatusText(MKELDLanguageConstants::kPerforming); });
  Attempt([&] { Required(mWindow.xrvResultView).ClearDisplay(); });
  Attempt([&] { Test->RunTest(); });
  fRunning = false;
  fRanHere = true;
  Attempt([&] { Required(mWindow.xtbToolbar).SetStatusText(""); });
  Attempt([&] { SetButtons(); });
}

void FTestGuide::StopRoutine() {
  const auto Test = mTest.lock();
  if (!Test) return;
  Attempt([&] { Test->StopTest(); });
  Attempt([&] { SetStatusText(MKELDLanguageConstants::kStopping); });
}

void FTestGuide::CalibrateRoutine() {
  std::shared_ptr<instrument::FCalibrateLeads> Calibration;
  Attempt([&] { Calibration = instrument::FCalibrateLeads::Create(); });
  Attempt([&] {
    Required(Calibration).ShowModal(mWindow.Form);
    if (!Calibration->Cancelled()) RefreshInstrumentData();
  });
  Attempt([&] { Required(Calibration).Unload(); });
}

void FTestGuide::SetButtons() {
  auto& Buttons = Required(mWindow.xtbToolbar);
  for (const std::int32_t lCommand : {kCommandPrevious, kCommandNext, kCommandNotApplicable, kCommandSkip,
                                      kCommandTools, kCommandCalibrate})
    Buttons.EnableCommand(lCommand, !fRunning);
  Buttons.EnableCommand(kCommandStop, fRunning);
  Buttons.EnableCommand(kCommandPlay, true);
  Buttons.EnableCommand(kCommandAbort, true);
  const std::int32_t lOptions = OptionsOf(mElement.lock());
  Buttons.ShowCommand(kCommandNotApplicable, (lOptions & orvik::OptionBits::kOffersNotApplicable) != 0);
  Buttons.ShowCommand(kCommandSkip, (lOptions & orvik::OptionBits::kOffersSkip) != 0);
  Attempt([&] { mWindow.LockInstrumentData(fRunning); });
}

void FTestGuide::SetStatusText(const char* sText) {
  Required(mWindow.xtbToolbar).SetStatusText(MKELDGlobalVars::Shown(sText));
}

void FTestGuide::OnResultsMouseUp(int iButton, int, orvik::platform::Twips, orvik::platform::Twips) {
  if (iButton == kRightButton) Attempt([&] { SelectStandard(lStandard + 1); });
}

}  // namespace keld::ui
