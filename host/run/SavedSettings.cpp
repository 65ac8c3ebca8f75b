#include "host/run/SavedSettings.h"

namespace bench {

SavedSettings::SavedSettings(const orvik::IConfigData& configuration) {
  orvik::IXmlDocument& document = *xml_;
  node_ = document.CreateRoot("Configuration");
  configuration.Save(node_);
  settings_ = document.FindElement("KELDConfig");
}

}  // namespace bench
