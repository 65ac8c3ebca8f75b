#include "plugin/configuration/XKELDTestConfiguration.h"

#include "platform/ITreeView.h"
#include "plugin/base/ClassIdentifiers.h"

namespace keld::configuration {

std::shared_ptr<XKELDTestConfiguration> XKELDTestConfiguration::Create() {
  return std::shared_ptr<XKELDTestConfiguration>(new XKELDTestConfiguration);
}

std::string XKELDTestConfiguration::IObject_ClassID() const {
  return ClassIdentifiers::kTestConfigurationControl;
}

// A reopened dialog remembers the selected lead.
void XKELDTestConfiguration::LeadShownChecked(const std::string& sKey) { msLastLead = sKey; }

void XKELDTestConfiguration::OnLeadClicked(const std::string& sKey) {
  const auto tvwSettings = Tree();
  if (!tvwSettings) return;
  // A click on the selected lead keeps it: only another lead replaces it.
  tvwSettings->SetChecked(sKey, true);
  if (!msLastLead.empty() && msLastLead != sKey) {
    tvwSettings->SetChecked(msLastLead, false);
    StoreCheck(msLastLead);
  }
  StoreCheck(sKey);
  msLastLead = sKey;
}

}  // namespace keld::configuration
