#pragma once

#include <memory>
#include <string>

#include "plugin/configuration/ConfigurationControl.h"

namespace keld::configuration {

/// Edits the configuration of a single test (class "orvikKELD.XKELDTestConfiguration"). Leads are exclusive:
/// clicking a lead checks it and clears the one before.
class XKELDTestConfiguration final : public ConfigurationControl {
 public:
  static std::shared_ptr<XKELDTestConfiguration> Create();

 private:
  XKELDTestConfiguration() = default;

  std::string IObject_ClassID() const override;
  void LeadShownChecked(const std::string& sKey) override;
  void OnLeadClicked(const std::string& sKey) override;

  std::string msLastLead;  ///< key of the lead checked last, or empty
};

}  // namespace keld::configuration
