#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/ICustomControl.h"
#include "platform/Controls.h"
#include "platform/Event.h"
#include "platform/IContainerSite.h"
#include "platform/IUserControl.h"
#include "platform/Types.h"

namespace keld::instrument {

/// Shows the tester's identity and the calibration value of its leads (class "orvikKELD.XKELDData").
///
/// The operator picks or types another serial number in "cboSerial": the instrument data adopts it with its
/// stored calibration value, and the control shows both. An emptied box reverts to the current serial number.
/// `Initialize` needs no values: there is one instrument data object for the process.
class XKELDData final : public virtual orvik::ICustomControl, public orvik::platform::IUserControl {
 public:
  static std::shared_ptr<XKELDData> Create();

  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) override;

  orvik::platform::Color BackColor() const;
  void SetBackColor(orvik::platform::Color color);

 private:
  XKELDData() = default;

  std::string IObject_ClassID() const override;
  std::shared_ptr<orvik::ICallBack> ICustomControl_CallBack() const override { return mCallBack; }
  void ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) override;
  orvik::WindowHandle ICustomControl_hWnd() const override;
  bool ICustomControl_Locked() const override { return mfLocked; }
  void ICustomControl_SetLocked(bool fLocked) override;
  bool ICustomControl_Visible() const override;
  void ICustomControl_SetVisible(bool fVisible) override;
  void ICustomControl_Initialize(std::shared_ptr<orvik::IObject> Data, const orvik::Variant& v1,
                                 const orvik::Variant& v2, const orvik::Variant& v3) override;
  void ICustomControl_Refresh() override;
  void ICustomControl_SetFocus() override;

  void AddControls(orvik::platform::IPanel& panel);
  void ShowData();
  void TakeSerialNumber();

  std::weak_ptr<orvik::platform::IContainerSite> mSite;
  std::shared_ptr<orvik::platform::IComboBox> cboSerial;
  std::shared_ptr<orvik::platform::ITextBox> txtMTIType;
  std::shared_ptr<orvik::platform::ITextBox> txtFwVer;
  std::shared_ptr<orvik::platform::ITextBox> txtCalib;
  std::shared_ptr<orvik::ICallBack> mCallBack;
  bool mfLocked = false;
  /// The box is being filled, so its events are not the operator's.
  bool mfFilling = false;
  orvik::platform::Subscription mSelectedSubscription;
  orvik::platform::Subscription mLostFocusSubscription;
};

}  // namespace keld::instrument
