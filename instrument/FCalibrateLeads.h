#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "OrvikTypeLib/IDialogForm.h"
#include "instrument/CKELDInstrument.h"
#include "instrument/CalibrationControls.h"
#include "platform/Event.h"
#include "platform/IForm.h"

namespace keld::instrument {

/// The window in which the operator measures the resistance of the test leads and stores it under the
/// tester's serial number (class "orvikKELD.FCalibrateLeads").
///
/// Cancelling, also by the cross or the escape key, hides the window and ends an open session. A modal
/// display therefore returns once the session has ended, within the link's time-outs.
class FCalibrateLeads final : public virtual orvik::IDialogForm {
 public:
  static std::shared_ptr<FCalibrateLeads> Create();
  ~FCalibrateLeads() override;

  /// Shows the window and returns when it is closed and no exchange is active.
  void ShowModal(const std::shared_ptr<orvik::platform::IForm>& Owner);
  /// Whether the window was closed without saving.
  bool Cancelled() const { return fCancelled; }
  /// Ends the session and releases the window.
  void Unload();

 private:
  FCalibrateLeads();

  std::string IObject_ClassID() const override;
  std::shared_ptr<orvik::platform::IForm> IDialogForm_Form() const override { return mForm; }

  void Subscribe();
  void cmdCalibrate_Click();
  void cmdSave_Click();
  void cmdCancel_Click();
  void txtSerial_Change();
  void mVTI_ResultReceived(std::int32_t ecsCommsState, std::int16_t iTestNo);
  void mVTI_GotMtiData(const MtiDataArray& avData);

  void Calibrate();
  void EndSession();
  void ShowStatus(const char* pcText);
  void ShowGuidance(const char* pcText);
  void ShowProgress(std::int32_t lSteps);

  std::shared_ptr<CKELDInstrument> mVTI;
  bool fValueValid = false;
  /// The last identity received; none before.
  std::optional<MtiDataArray> mavData;
  bool fCancelled = false;

  bool fCalibrating = false;
  bool fCalibrateAgain = false;
  std::int32_t lProgress = 0;
  std::shared_ptr<orvik::platform::IForm> mForm;
  CalibrationControls mControls;
  orvik::platform::Subscription mCalibrateSubscription;
  orvik::platform::Subscription mSaveSubscription;
  orvik::platform::Subscription mCancelSubscription;
  orvik::platform::Subscription mCloseSubscription;
  orvik::platform::Subscription mKeySubscription;
  orvik::platform::Subscription mSerialSubscription;
  orvik::platform::Subscription mResultSubscription;
  orvik::platform::Subscription mDataSubscription;
};

}  // namespace keld::instrument
