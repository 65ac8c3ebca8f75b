#pragma once

#include <memory>

#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/services/XmlDocument.h"

namespace bench {

/// The settings of an element as it saves them: the one way in which a host sees what stands in them.
class SavedSettings {
 public:
  static constexpr char kOptions[] = "Options";
  static constexpr char kFilter[] = "ValueFilter";

  explicit SavedSettings(const orvik::IConfigData& configuration);

  /// What `IConfigData::Load` takes: the node "Configuration".
  const std::shared_ptr<orvik::IXmlNode>& Node() const { return node_; }
  /// The node in it whose attributes are the settings; null when the element has none of this kind.
  const std::shared_ptr<orvik::IXmlNode>& Settings() const { return settings_; }

 private:
  std::shared_ptr<XmlDocument> xml_ = std::make_shared<XmlDocument>();
  std::shared_ptr<orvik::IXmlNode> node_;
  std::shared_ptr<orvik::IXmlNode> settings_;
};

}  // namespace bench
