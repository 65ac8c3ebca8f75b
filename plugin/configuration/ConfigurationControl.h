#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ICustomControl.h"
#include "platform/Event.h"
#include "platform/IUserControl.h"
#include "platform/Layout.h"

namespace orvik::platform {
class IControl;
class IPanel;
class ITreeView;
}  // namespace orvik::platform

namespace keld::configuration {

class CKELDTestConfiguration;

/// The common part of the two controls that edit a `CKELDTestConfiguration`: the tree "tvwSettings" with one
/// check box for each option, under the label "lblGeneralSettings". Every change is stored in the
/// configuration at once and notified to the call-back object with the text "Change".
class ConfigurationControl : public virtual orvik::ICustomControl, public orvik::platform::IUserControl {
 public:
  /// The configuration to edit; kept alive by the control.
  void SetOwner(std::shared_ptr<CKELDTestConfiguration> Owner);
  /// The contained control of that name, or empty.
  std::shared_ptr<orvik::platform::IControl> GetControl(const std::string& sName) const;
  /// Fills the tree with the options of the configuration's owner, checked if they are set.
  void FillSettings();

  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) final;

 protected:
  std::shared_ptr<CKELDTestConfiguration> Owner() const { return mOwner; }
  std::shared_ptr<orvik::platform::IPanel> Panel() const;
  std::shared_ptr<orvik::platform::ITreeView> Tree() const;

  /// Adds further controls below the tree, to the panel and to its one-column grid.
  virtual void AddControls(orvik::platform::IPanel& panel, orvik::platform::Grid& grid);
  /// Called when a checked lead was added to the tree.
  virtual void LeadShownChecked(const std::string& sKey);
  /// Called when the operator clicked the check box of a lead.
  virtual void OnLeadClicked(const std::string& sKey);
  virtual void LockControls(bool fLocked);

  /// Sets or clears the bit of the node's key to match its check box.
  void StoreCheck(const std::string& sKey);
  /// Notifies the call-back object, if there is one, of a change.
  void NotifyChange();

 private:
  void OnNodeClicked(const std::string& sKey);
  std::shared_ptr<orvik::platform::IContainerSite> Site() const;

  std::shared_ptr<orvik::ICallBack> ICustomControl_CallBack() const final;
  void ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) final;
  orvik::WindowHandle ICustomControl_hWnd() const final;
  bool ICustomControl_Locked() const final;
  void ICustomControl_SetLocked(bool fLocked) final;
  bool ICustomControl_Visible() const final;
  void ICustomControl_SetVisible(bool fVisible) final;
  void ICustomControl_Initialize(std::shared_ptr<orvik::IObject> Data, const orvik::Variant& v1,
                                 const orvik::Variant& v2, const orvik::Variant& v3) final;
  void ICustomControl_Refresh() final;
  void ICustomControl_SetFocus() final;

  std::shared_ptr<CKELDTestConfiguration> mOwner;
  std::shared_ptr<orvik::ICallBack> mCallBack;
  bool mfLocked = false;
  std::weak_ptr<orvik::platform::IContainerSite> mSite;
  orvik::platform::Subscription mClickSubscription;
};

}  // namespace keld::configuration
