#include "host/elements/ServiceRecord.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "host/xml/XmlNode.h"

namespace host::elements {

void ServiceRecord::IServiceRecord_Initialize(std::shared_ptr<orvik::IInformationRecord> Information,
                                              const std::string& sCode, const std::string& sValue) {
  name_ = orvik::Required(Information).DisplayName();
  code_ = sCode;
  value_ = sValue;
}

void ServiceRecord::IServiceRecord_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject>) {
  const char *name = "", *code = "", *value = "";
  leftovers_.Take(xml::XmlNode::Of(Node).Raw(), {{"Name", name}, {"Code", code}, {"Value", value}}, {});
  name_ = name;
  code_ = code;
  value_ = value;
}

std::shared_ptr<orvik::IXmlNode> ServiceRecord::IServiceRecord_Save(
    std::shared_ptr<orvik::IXmlNode> Parent) const {
  auto saved = orvik::Required(Parent).AddChild("ServiceRecord");
  const auto node = xml::XmlNode::Of(saved).Raw();
  xml::AddAttribute(node, "Name", name_);
  xml::AddAttribute(node, "Code", code_);
  xml::AddAttribute(node, "Value", value_);
  leftovers_.Restore(node);
  return saved;
}

}  // namespace host::elements
