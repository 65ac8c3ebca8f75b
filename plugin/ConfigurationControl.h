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

namespace keld {

class CKELDTestConfiguration;

/// What the two controls that edit a `CKELDTestConfiguration` share: the tree "tvwSettings" with one check
/// box for each option, under the label "lblGeneralSettings". Every change goes into the configuration at
/// once and is told to the call-back object with the text "Change".
class ConfigurationControl : public virtual orvik::ICustomControl, public orvik::platform::IUserControl {
 public:
  /// The configuration to edit; kept alive by the control.
  void SetOwner(std::shared_ptr<CKELDTestConfiguration> Owner);
  /// The control of that name among those inside, or empty.
  std::shared_ptr<orvik::platform::IControl> GetControl(const std::string& sName) const;
  /// Fills the tree with the options that the configuration's owner offers, checked as they are set.
  void FillSettings();

  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) final;

 protected:
  std::shared_ptr<CKELDTestConfiguration> Owner() const { return mOwner; }
  std::shared_ptr<orvik::platform::IPanel> Panel() const;
  std::shared_ptr<orvik::platform::ITreeView> Tree() const;

  /// Adds what the control has beside the tree to its panel, and to the grid of one column.
  virtual void AddControls(orvik::platform::IPanel& panel, orvik::platform::Grid& grid);
  /// A lead has just been put into the tree with its check box checked.
  virtual void LeadShownChecked(const std::string& sKey);
  /// The operator has clicked the check box of a node that is not one of the two buttons'.
  virtual void OnLeadClicked(const std::string& sKey);
  virtual void LockControls(bool fLocked);

  /// Sets or clears the bit of the node's key to match its check box.
  void StoreCheck(const std::string& sKey);
  /// Tells the call-back object, if there is one, that the configuration was changed.
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

}  // namespace keld
