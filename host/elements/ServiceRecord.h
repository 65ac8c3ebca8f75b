#pragma once

#include <string>

#include "OrvikTypeLib/IServiceRecord.h"
#include "host/xml/UnknownXml.h"

namespace host::elements {

/// The summary of one result, saved as the attributes "Name", "Code" and "Value".
class ServiceRecord final : public orvik::IServiceRecord {
 private:
  void IServiceRecord_Initialize(std::shared_ptr<orvik::IInformationRecord> Information,
                                 const std::string& sCode, const std::string& sValue) override;
  std::string IServiceRecord_Name() const override { return name_; }
  std::string IServiceRecord_Code() const override { return code_; }
  std::string IServiceRecord_Value() const override { return value_; }
  void IServiceRecord_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject> Context) override;
  std::shared_ptr<orvik::IXmlNode> IServiceRecord_Save(
      std::shared_ptr<orvik::IXmlNode> Parent) const override;

  std::string name_;
  std::string code_;
  std::string value_;
  xml::UnknownXml leftovers_;
};

}  // namespace host::elements
