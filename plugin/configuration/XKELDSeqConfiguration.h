#pragma once

#include <memory>
#include <string>

#include "plugin/configuration/ConfigurationControl.h"

namespace orvik::platform {
class IComboBox;
}

namespace keld::configuration {

/// Edits the configuration of a sequence (class "orvikKELD.XKELDSeqConfiguration"): the tree, and under the
/// label "lblAssign" the list "cmbAssign" of value filters.
class XKELDSeqConfiguration final : public ConfigurationControl {
 public:
  static std::shared_ptr<XKELDSeqConfiguration> Create();

 private:
  XKELDSeqConfiguration() = default;

  std::string IObject_ClassID() const override;
  void AddControls(orvik::platform::IPanel& panel, orvik::platform::Grid& grid) override;
  void LockControls(bool fLocked) override;
  void OnFilterSelected();
  std::shared_ptr<orvik::platform::IComboBox> FilterList() const;

  orvik::platform::Subscription mSelectSubscription;
};

}  // namespace keld::configuration
