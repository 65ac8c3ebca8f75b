#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/ILimitView.h"
#include "OrvikTypeLib/IStandard.h"
#include "platform/Event.h"
#include "toolkit/controls/HostControl.h"
#include "toolkit/controls/LimitViewControls.h"

namespace toolkit::controls {

/// Edits the limits of one element: lists its standards, edits the bounds of the selected one (the first
/// limit with the view's key), and adds and removes standards.
///
/// Input is stored by Apply, or when another standard is selected or added. Input that the limit rejects
/// stays visible with the reason. The call-back is notified with "Change" after each change. Operations fail
/// with `HostError` 91 until the control is placed.
class XLimitView final : public virtual orvik::ILimitView, public HostControl {
 public:
  using HostControl::HostControl;

 private:
  std::string IObject_ClassID() const override;
  std::shared_ptr<orvik::ICallBack> ICustomControl_CallBack() const override { return callBack_; }
  void ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) override;
  orvik::WindowHandle ICustomControl_hWnd() const override;
  bool ICustomControl_Locked() const override { return locked_; }
  void ICustomControl_SetLocked(bool fLocked) override;
  bool ICustomControl_Visible() const override;
  void ICustomControl_SetVisible(bool fVisible) override;
  /// `Data` is the element's `ILimitData`, otherwise the list is empty. The values are not used.
  void ICustomControl_Initialize(std::shared_ptr<orvik::IObject> Data, const orvik::Variant& v1,
                                 const orvik::Variant& v2, const orvik::Variant& v3) override;
  void ICustomControl_Refresh() override;
  void ICustomControl_SetFocus() override;
  void ILimitView_InitializeView(const std::string& sKey, const std::string& sCaption,
                                 const std::string& sUnit, const std::string& sAllowedUnits) override;

  void Build(orvik::platform::IPanel& panel) override;
  void ListenToControls();
  void FillList();
  void FillRow(const std::string& row);
  void ShowBounds();
  void ShowMessage(const std::string& text);

  void OnRowSelected();
  void OnEdited();
  bool StorePending() { return !pending_ || Store(); }
  bool Store();
  void AddStandard();
  void RemoveStandard();
  void NotifyChange();

  std::shared_ptr<orvik::IStandard> StandardOf(const std::string& row) const;
  std::shared_ptr<orvik::ILimit> LimitOf(const std::string& row) const;

  LimitViewControls controls_;
  std::vector<orvik::platform::Subscription> subscriptions_;
  std::shared_ptr<orvik::ICallBack> callBack_;
  std::shared_ptr<orvik::ILimitData> data_;
  std::string key_;
  std::string unit_;
  std::string allowedUnits_;
  bool locked_ = false;
  // The row whose bounds are shown, empty for none.
  std::string shownRow_;
  bool showing_ = false;
  bool pending_ = false;
};

}  // namespace toolkit::controls
