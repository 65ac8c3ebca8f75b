#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/xml/XmlDocument.h"

namespace bench {

/// The settings of an element as it saves them: the one way in which a host sees what stands in them.
class SavedSettings {
 public:
  static constexpr const char* kOptions = keld_facts::kOptionsAttribute;
  static constexpr const char* kFilter = keld_facts::kFilterAttribute;

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

/// The option bits of the element that decide what is measured; 0 when it has none.
std::int32_t MeasuringSettings(const orvik::ITestElement& element);

/// How the element makes a value of its children's; empty when it has no such setting.
std::string ValueFilter(const orvik::ITestElement& element);

}  // namespace bench
