#pragma once

#include <memory>
#include <string>

#include "plugin/ConfigurationControl.h"

namespace keld {

/// Edits the configuration of a single test (class "orvikKELD.XKELDTestConfiguration"). Leads are exclusive:
/// a lead that the operator clicks is checked, and the one before it is cleared.
class XKELDTestConfiguration final : public ConfigurationControl {
 public:
  static std::shared_ptr<XKELDTestConfiguration> Create();

 private:
  XKELDTestConfiguration() = default;

  std::string IObject_ClassID() const override;
  void LeadShownChecked(const std::string& sKey) override;
  void OnLeadClicked(const std::string& sKey) override;

  std::string msLastLead;  ///< key of the lead checked last; empty while there is none
};

}  // namespace keld
