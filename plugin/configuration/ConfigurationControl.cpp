#include "plugin/configuration/ConfigurationControl.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ICallBack.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/ITreeView.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/configuration/CKELDTestConfiguration.h"

namespace keld::configuration {

using orvik::As;
using orvik::Required;
namespace platform = orvik::platform;

namespace {

constexpr char kTree[] = "tvwSettings";
constexpr char kTreeLabel[] = "lblGeneralSettings";
constexpr platform::Twips kTreeHeight = 2700;
constexpr platform::Twips kTreeWidth = 3600;

}  // namespace

void ConfigurationControl::AttachTo(const std::shared_ptr<platform::IContainerSite>& site) {
  mSite = site;
  const auto panel = site->Panel();
  panel->AddLabel(kTreeLabel)->SetCaption(MKELDLanguageConstants::kGeneralSettings);
  const auto tvwSettings = panel->AddTreeView(kTree);

  // The tree takes all remaining space.
  platform::Grid grid;
  grid.columns = {{kTreeWidth, 1}};
  grid.rows = {{}, {kTreeHeight, 1}};
  grid.cells = {{kTreeLabel, 0, 0}, {kTree, 1, 0}};
  AddControls(*panel, grid);
  MKELDGlobalVars::TranslateCaptions(panel);
  panel->SetGrid(grid);

  // The call-back may close the dialog: keep the control alive until the handler returns.
  mClickSubscription =
      tvwSettings->NodeClicked().Subscribe([this, Weak = weak_from_this()](const std::string& sKey) {
        if (const auto Self = Weak.lock()) OnNodeClicked(std::string(sKey));
      });
}

void ConfigurationControl::AddControls(platform::IPanel& /*panel*/, platform::Grid& /*grid*/) {}
void ConfigurationControl::LeadShownChecked(const std::string& /*sKey*/) {}
void ConfigurationControl::OnLeadClicked(const std::string& /*sKey*/) {}

void ConfigurationControl::SetOwner(std::shared_ptr<CKELDTestConfiguration> Owner) {
  mOwner = std::move(Owner);
}

std::shared_ptr<platform::IControl> ConfigurationControl::GetControl(const std::string& sName) const {
  const auto panel = Panel();
  if (!panel) return {};
  for (const auto& control : panel->Controls()) {
    if (control->Name() == sName) return control;
  }
  return {};
}

void ConfigurationControl::FillSettings() {
  const auto tvwSettings = Tree();
  if (!tvwSettings || !mOwner) return;
  tvwSettings->ClearNodes();
  for (const auto& option : ConfigurationTables::OptionsFor(mOwner->OwnerTestID())) {
    const bool fChecked = (mOwner->Options() & option.lBit) != 0;
    tvwSettings->AddNode(option.sKey, MKELDGlobalVars::Shown(option.sCaption));
    tvwSettings->SetChecked(option.sKey, fChecked);
    if (fChecked && ConfigurationTables::IsLead(option.sKey)) LeadShownChecked(option.sKey);
  }
}

void ConfigurationControl::OnNodeClicked(const std::string& sKey) {
  if (ConfigurationTables::IsLead(sKey)) {
    OnLeadClicked(sKey);
  } else {
    StoreCheck(sKey);
  }
  NotifyChange();
}

void ConfigurationControl::StoreCheck(const std::string& sKey) {
  const auto tvwSettings = Tree();
  if (!mOwner || !tvwSettings) return;
  const std::int32_t lBit = ConfigurationTables::BitOf(sKey);
  const std::int32_t lOthers = mOwner->Options() & ~lBit;
  mOwner->SetOptions(tvwSettings->Checked(sKey) ? lOthers | lBit : lOthers);
}

void ConfigurationControl::NotifyChange() {
  const auto CallBack = mCallBack;
  if (CallBack) Attempt([&] { CallBack->Notify("Change"); });
}

void ConfigurationControl::LockControls(bool fLocked) {
  if (const auto tvwSettings = Tree()) tvwSettings->SetEnabled(!fLocked);
}

std::shared_ptr<platform::IContainerSite> ConfigurationControl::Site() const { return mSite.lock(); }

std::shared_ptr<platform::IPanel> ConfigurationControl::Panel() const {
  const auto site = Site();
  return site ? site->Panel() : nullptr;
}

std::shared_ptr<platform::ITreeView> ConfigurationControl::Tree() const {
  return As<platform::ITreeView>(GetControl(kTree));
}

std::shared_ptr<orvik::ICallBack> ConfigurationControl::ICustomControl_CallBack() const { return mCallBack; }

void ConfigurationControl::ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) {
  mCallBack = std::move(CallBack);
}

orvik::WindowHandle ConfigurationControl::ICustomControl_hWnd() const {
  const auto site = Site();
  return site ? site->Handle() : 0;
}

bool ConfigurationControl::ICustomControl_Locked() const { return mfLocked; }

void ConfigurationControl::ICustomControl_SetLocked(bool fLocked) {
  mfLocked = fLocked;
  LockControls(fLocked);
}

bool ConfigurationControl::ICustomControl_Visible() const {
  const auto site = Site();
  if (!site) return false;
  const auto vVisible = site->ExtenderProperty("Visible");
  const auto* pfVisible = std::get_if<bool>(&vVisible);
  return pfVisible && *pfVisible;
}

void ConfigurationControl::ICustomControl_SetVisible(bool fVisible) {
  Required(Site()).SetExtenderProperty("Visible", fVisible);
}

// The configuration comes through `SetOwner`; the host's values are ignored.
void ConfigurationControl::ICustomControl_Initialize(std::shared_ptr<orvik::IObject> /*Data*/,
                                                     const orvik::Variant& /*v1*/,
                                                     const orvik::Variant& /*v2*/,
                                                     const orvik::Variant& /*v3*/) {}

void ConfigurationControl::ICustomControl_Refresh() {
  if (const auto panel = Panel()) panel->Refresh();
  if (const auto tvwSettings = Tree()) tvwSettings->Refresh();
}

void ConfigurationControl::ICustomControl_SetFocus() {
  if (const auto tvwSettings = Tree()) tvwSettings->SetFocus();
}

}  // namespace keld::configuration
