#include "host/instruments/InstrumentRecord.h"

#include "host/xml/XmlNode.h"

namespace host::instruments {
namespace {

constexpr char kIndex[] = "Index";
constexpr char kTypeName[] = "TypeName";
constexpr char kMtiType[] = "MTIType";
constexpr char kSerialNumber[] = "SerialNumber";
constexpr char kFirmwareVersion[] = "FirmwareVersion";
constexpr char kProperty[] = "Property";
constexpr char kNameAttribute[] = "Name";

}  // namespace

std::string InstrumentRecord::IInstrumentRecord_Property(const std::string& sName) const {
  const auto found = properties_.find(sName);
  return found == properties_.end() ? std::string() : found->second;
}

void InstrumentRecord::IInstrumentRecord_SetProperty(const std::string& sName, const std::string& sText) {
  properties_[sName] = sText;
}

void InstrumentRecord::Load(pugi::xml_node node) {
  index_ = xml::NumberAttribute(node, kIndex);
  typeName_ = node.attribute(kTypeName).value();
  mtiType_ = node.attribute(kMtiType).value();
  serialNumber_ = node.attribute(kSerialNumber).value();
  firmwareVersion_ = node.attribute(kFirmwareVersion).value();
  for (const auto property : node.children(kProperty))
    properties_[property.attribute(kNameAttribute).value()] = xml::Text(property);
  leftovers_.Take(node, {kIndex, kTypeName, kMtiType, kSerialNumber, kFirmwareVersion}, {kProperty});
}

void InstrumentRecord::Save(pugi::xml_node parent) const {
  auto node = parent.append_child("Instrument");
  xml::SetAttribute(node, kIndex, std::to_string(index_));
  xml::SetAttribute(node, kTypeName, typeName_);
  xml::SetAttribute(node, kMtiType, mtiType_);
  xml::SetAttribute(node, kSerialNumber, serialNumber_);
  xml::SetAttribute(node, kFirmwareVersion, firmwareVersion_);
  for (const auto& [name, text] : properties_) {
    auto property = node.append_child(kProperty);
    xml::SetAttribute(property, kNameAttribute, name);
    xml::SetText(property, text);
  }
  leftovers_.Restore(node);
}

}  // namespace host::instruments
