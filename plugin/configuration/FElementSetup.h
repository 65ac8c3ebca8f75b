#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ICustomControl.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "platform/Event.h"

namespace orvik::platform {
class IContainerSite;
class IForm;
}  // namespace orvik::platform

namespace keld::configuration {

/// The dialog for every editing view of the plug-in: a form with one user control, which the host docks into
/// its own window or shows as a window.
///
/// Errors inside its operations are ignored; without a control the operations that need one do nothing.
/// `Show` acts on a docked dialog only: otherwise the host shows the form itself, through `IDialogForm`.
/// Destroying the dialog unloads the form.
class FElementSetup final : public virtual orvik::IDialog, public virtual orvik::IDialogForm {
 public:
  static std::shared_ptr<FElementSetup> Create();
  ~FElementSetup() override;

  /// Creates the dialog's one control; a second call adds nothing.
  /// @param sClassID class identifier of an `ICustomControl`; empty creates nothing
  /// @return the control's site, or empty
  std::shared_ptr<orvik::platform::IContainerSite> CreateSetupCtrl(const std::string& sClassID);

 private:
  FElementSetup() = default;

  std::string IObject_ClassID() const override;
  std::shared_ptr<orvik::platform::IForm> IDialogForm_Form() const override;
  std::shared_ptr<orvik::ICallBack> IDialog_CallBack() const override;
  void IDialog_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) override;
  bool IDialog_IsDocked() const override;
  bool IDialog_Locked() const override;
  void IDialog_SetLocked(bool fLocked) override;
  void IDialog_Dock(orvik::WindowHandle hParent) override;
  void IDialog_UnDock() override;
  void IDialog_Hide() override;
  void IDialog_Show() override;
  void IDialog_Move(std::int32_t lLeft, std::int32_t lTop, std::int32_t lWidth,
                    std::int32_t lHeight) override;
  void IDialog_Refresh() override;
  void IDialog_SetFocus() override;
  void IDialog_Initialize(std::shared_ptr<orvik::IObject> Data, const orvik::Variant& v1,
                          const orvik::Variant& v2, const orvik::Variant& v3) override;
  void IDialog_Unload() override;

  void ReturnControlToForm();

  bool mfDocked = false;
  std::shared_ptr<orvik::ICustomControl> mCustomControl;
  std::shared_ptr<orvik::platform::IContainerSite> mControlSite;
  std::shared_ptr<orvik::platform::IForm> mForm;
  orvik::platform::Subscription mFocusSubscription;
};

}  // namespace keld::configuration
