#include "host/services/ServiceRecord.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "host/services/XmlNode.h"

namespace bench {

void ServiceRecord::IServiceRecord_Initialize(std::shared_ptr<orvik::IInformationRecord> Information,
                                              const std::string& sCode, const std::string& sValue) {
  name_ = orvik::Required(Information).DisplayName();
  code_ = sCode;
  value_ = sValue;
}

void ServiceRecord::IServiceRecord_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject>) {
  const auto node = XmlNode::Of(Node).Raw();
  name_ = node.attribute("Name").value();
  code_ = node.attribute("Code").value();
  value_ = node.attribute("Value").value();
  leftovers_.Take(node, {"Name", "Code", "Value"}, {});
}

std::shared_ptr<orvik::IXmlNode> ServiceRecord::IServiceRecord_Save(
    std::shared_ptr<orvik::IXmlNode> Parent) const {
  auto saved = orvik::Required(Parent).AddChild("ServiceRecord");
  const auto node = XmlNode::Of(saved).Raw();
  xml::SetAttribute(node, "Name", name_);
  xml::SetAttribute(node, "Code", code_);
  xml::SetAttribute(node, "Value", value_);
  leftovers_.Restore(node);
  return saved;
}

}  // namespace bench
