#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/xml/XmlDocument.h"

namespace host::document {

/// The settings of an element as it saves them. The contract offers a host no other access to them.
class SavedSettings {
 public:
  static constexpr const char* kOptions = plugins::keld::kOptionsAttribute;
  static constexpr const char* kFilter = plugins::keld::kFilterAttribute;

  explicit SavedSettings(const orvik::IConfigData& configuration);

  /// What `IConfigData::Load` takes: the node "Configuration".
  const std::shared_ptr<orvik::IXmlNode>& Node() const { return node_; }
  /// The node with the settings as attributes; null for an element of another plug-in.
  const std::shared_ptr<orvik::IXmlNode>& Settings() const { return settings_; }

 private:
  std::shared_ptr<xml::XmlDocument> xml_ = std::make_shared<xml::XmlDocument>();
  std::shared_ptr<orvik::IXmlNode> node_;
  std::shared_ptr<orvik::IXmlNode> settings_;
};

/// The option bits that decide what is measured; 0 for an element without options.
std::int32_t MeasuringSettings(const orvik::ITestElement& element);

/// The name of the filter that gives a group its value; empty for an element without one.
std::string ValueFilter(const orvik::ITestElement& element);

}  // namespace host::document
