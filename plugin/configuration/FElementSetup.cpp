#include "plugin/configuration/FElementSetup.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IUserControl.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"

namespace keld::configuration {

using orvik::As;
using orvik::Required;

namespace {

constexpr char kControlName[] = "isc";

/// The control fills the form.
orvik::platform::Grid WholeForm() {
  orvik::platform::Grid grid;
  grid.rows = {{0, 1}};
  grid.columns = {{0, 1}};
  grid.cells = {{kControlName, 0, 0}};
  grid.margin = 0;
  return grid;
}

}  // namespace

std::shared_ptr<FElementSetup> FElementSetup::Create() {
  const std::shared_ptr<FElementSetup> Created(new FElementSetup);
  Attempt([&] { Created->mForm = MKELDGlobalVars::Application()->CreateForm("FElementSetup"); });
  Attempt([&] {
    Required(Created->mForm).SetCaption(MKELDLanguageConstants::kPlugInName);
    MKELDGlobalVars::TranslateCaptions(Created->mForm);
  });
  Attempt([&] {
    const std::weak_ptr<FElementSetup> Weak = Created;
    Created->mFocusSubscription = Required(Created->mForm).GotFocus().Subscribe([Weak] {
      if (const auto Self = Weak.lock()) Self->SetFocus();
    });
  });
  return Created;
}

FElementSetup::~FElementSetup() { FElementSetup::IDialog_Unload(); }

std::shared_ptr<orvik::platform::IContainerSite> FElementSetup::CreateSetupCtrl(const std::string& sClassID) {
  if (sClassID.empty()) return {};
  Attempt([&] {
    mControlSite = Required(mForm).AddControl(sClassID, kControlName);
    mCustomControl = As<orvik::ICustomControl>(Required(mControlSite).Object());
  });
  if (mControlSite) Attempt([&] { mForm->SetGrid(WholeForm()); });
  return mControlSite;
}

std::string FElementSetup::IObject_ClassID() const { return ClassIdentifiers::kElementSetup; }

std::shared_ptr<orvik::platform::IForm> FElementSetup::IDialogForm_Form() const { return mForm; }

std::shared_ptr<orvik::ICallBack> FElementSetup::IDialog_CallBack() const {
  return AttemptValue(std::shared_ptr<orvik::ICallBack>(),
                      [&] { return Required(mCustomControl).CallBack(); });
}

void FElementSetup::IDialog_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) {
  Attempt([&] { Required(mCustomControl).SetCallBack(std::move(CallBack)); });
}

bool FElementSetup::IDialog_IsDocked() const { return mfDocked; }

bool FElementSetup::IDialog_Locked() const {
  return AttemptValue(false, [&] { return Required(mCustomControl).Locked(); });
}

void FElementSetup::IDialog_SetLocked(bool fLocked) {
  Attempt([&] { Required(mCustomControl).SetLocked(fLocked); });
}

void FElementSetup::IDialog_Dock(orvik::WindowHandle hParent) {
  if (hParent == 0) return;
  Attempt([&] {
    MKELDGlobalVars::Application()->SetParent(Required(mCustomControl).hWnd(), hParent);
    mfDocked = true;
  });
  // From now on the host places the control, not the form's layout. The form keeps its size.
  if (!mfDocked) return;
  Attempt([&] {
    const orvik::platform::Rect Place = mForm->Bounds();
    mForm->SetGrid({});
    mForm->SetBounds(Place);
  });
}

// The flag stays set, on purpose: `Hide`, `Show` and `Move` continue to act on the control.
void FElementSetup::IDialog_UnDock() { ReturnControlToForm(); }

void FElementSetup::IDialog_Hide() {
  Attempt([&] {
    if (mfDocked) {
      Required(mControlSite).SetVisible(false);
    } else {
      Required(mForm).Hide();
    }
  });
}

void FElementSetup::IDialog_Show() {
  if (mfDocked) Attempt([&] { Required(mControlSite).SetVisible(true); });
}

void FElementSetup::IDialog_Move(std::int32_t lLeft, std::int32_t lTop, std::int32_t lWidth,
                                 std::int32_t lHeight) {
  const orvik::platform::Rect Place{lLeft, lTop, lWidth, lHeight};
  Attempt([&] {
    if (mfDocked) {
      Required(mControlSite).SetBounds(Place);
    } else {
      Required(mForm).SetBounds(Place);
    }
  });
}

void FElementSetup::IDialog_Refresh() {
  Attempt([&] { Required(mCustomControl).Refresh(); });
}

void FElementSetup::IDialog_SetFocus() {
  Attempt([&] { Required(mCustomControl).SetFocus(); });
}

void FElementSetup::IDialog_Initialize(std::shared_ptr<orvik::IObject> Data, const orvik::Variant& v1,
                                       const orvik::Variant& v2, const orvik::Variant& v3) {
  Attempt([&] { Required(mCustomControl).Initialize(std::move(Data), v1, v2, v3); });
}

void FElementSetup::IDialog_Unload() {
  // The host's window must not keep a child window of an unloaded form.
  if (mfDocked) ReturnControlToForm();
  Attempt([&] { Required(mForm).Unload(); });
}

void FElementSetup::ReturnControlToForm() {
  Attempt([&] {
    MKELDGlobalVars::Application()->SetParent(Required(mCustomControl).hWnd(), Required(mForm).Handle());
  });
}

}  // namespace keld::configuration
