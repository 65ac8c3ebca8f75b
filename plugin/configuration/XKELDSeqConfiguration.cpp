#include "plugin/configuration/XKELDSeqConfiguration.h"

#include "OrvikTypeLib/As.h"
#include "platform/Controls.h"
#include "platform/IPanel.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/configuration/CKELDTestConfiguration.h"

namespace keld::configuration {

namespace platform = orvik::platform;

namespace {

constexpr char kList[] = "cmbAssign";
constexpr char kListLabel[] = "lblAssign";

}  // namespace

std::shared_ptr<XKELDSeqConfiguration> XKELDSeqConfiguration::Create() {
  return std::shared_ptr<XKELDSeqConfiguration>(new XKELDSeqConfiguration);
}

std::string XKELDSeqConfiguration::IObject_ClassID() const {
  return ClassIdentifiers::kSequenceConfigurationControl;
}

void XKELDSeqConfiguration::AddControls(platform::IPanel& panel, platform::Grid& grid) {
  panel.AddLabel(kListLabel)->SetCaption(MKELDLanguageConstants::kAssign);
  const auto cmbAssign = panel.AddComboBox(kList);
  cmbAssign->SetEditable(false);
  for (const char* sCaption : ConfigurationTables::ValueFilterCaptions())
    cmbAssign->AddItem(MKELDGlobalVars::Shown(sCaption));
  grid.rows.insert(grid.rows.end(), {{}, {}});
  grid.cells.push_back({kListLabel, 2, 0});
  grid.cells.push_back({kList, 3, 0});
  mSelectSubscription = cmbAssign->Selected().Subscribe([this, Weak = weak_from_this()] {
    if (const auto Self = Weak.lock()) OnFilterSelected();
  });
}

void XKELDSeqConfiguration::OnFilterSelected() {
  const auto cmbAssign = FilterList();
  if (!Owner() || !cmbAssign) return;
  const int iIndex = cmbAssign->SelectedIndex();
  Owner()->SetValueFilter(iIndex >= 0 && iIndex <= 3 ? iIndex + 1 : 0);
  NotifyChange();
}

void XKELDSeqConfiguration::LockControls(bool fLocked) {
  ConfigurationControl::LockControls(fLocked);
  if (const auto cmbAssign = FilterList()) cmbAssign->SetEnabled(!fLocked);
}

std::shared_ptr<platform::IComboBox> XKELDSeqConfiguration::FilterList() const {
  return orvik::As<platform::IComboBox>(GetControl(kList));
}

}  // namespace keld::configuration
