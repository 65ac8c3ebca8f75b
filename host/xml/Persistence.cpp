#include "host/xml/Persistence.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"

namespace host::xml {
namespace {

constexpr char kPersistenceSource[] = "OrvikTypeLib.Persistence";

}  // namespace

std::shared_ptr<orvik::IXmlNode> Persistence::IPersistence_WriteValue(std::shared_ptr<orvik::IXmlNode> Parent,
                                                                      const std::string& sText) {
  auto node = orvik::Required(Parent).AddChild("Value");
  node->SetText(sText);
  return node;
}

std::string Persistence::IPersistence_ReadValue(std::shared_ptr<orvik::IXmlNode> Node) const {
  auto text = orvik::Required(Node).Text();
  if (text.empty())
    throw orvik::HostError(orvik::HostError::kTypeMismatch, kPersistenceSource, Tr("the value is empty"));
  return text;
}

std::shared_ptr<orvik::IXmlNode> Persistence::IPersistence_WriteStatus(
    std::shared_ptr<orvik::IXmlNode> Parent, const std::string& sName, std::int32_t lStatus) {
  auto node = orvik::Required(Parent).AddChild("Status");
  if (!sName.empty()) node->SetAttribute("Name", sName);
  node->SetText(std::to_string(lStatus));
  return node;
}

std::int32_t Persistence::IPersistence_ReadStatus(std::shared_ptr<orvik::IXmlNode> Node) const {
  const auto text = orvik::Required(Node).Text();
  if (const auto status = WholeNumber(text)) return *status;
  throw orvik::HostError(orvik::HostError::kTypeMismatch, kPersistenceSource,
                         Tr("the status \"%%1\" is not a whole number", {text}));
}

}  // namespace host::xml
