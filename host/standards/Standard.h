#pragma once

#include <cstdint>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "OrvikTypeLib/IStandard.h"
#include "host/xml/UnknownXml.h"

namespace host::standards {

class Limit;

/// A standard with its limits, saved as `<Standard Name="..." Description="..." Number="1">` with one "Limit"
/// node each.
class Standard final : public orvik::IStandard {
 public:
  std::shared_ptr<Standard> Copy() const;
  /// `XmlError` for a malformed number or limit.
  void Load(pugi::xml_node node);
  void Save(pugi::xml_node parent) const;

 private:
  void IStandard_Initialize(const std::string& sName, const std::string& sDescription,
                            std::int32_t lNumber) override;
  std::string IStandard_Name() const override { return name_; }
  std::string IStandard_Description() const override { return description_; }
  std::int32_t IStandard_Number() const override { return number_; }
  std::int32_t IStandard_LimitCount() const override { return static_cast<std::int32_t>(limits_.size()); }
  std::shared_ptr<orvik::ILimit> IStandard_Limit(std::int32_t lIndex) const override;
  void IStandard_AddLimit(std::shared_ptr<orvik::ILimit> Limit) override;
  std::int32_t IStandard_Evaluate(float rValue, const std::string& sKey,
                                  const orvik::Variant& vNominal) const override;

  std::string name_;
  std::string description_;
  std::int32_t number_ = 1;
  std::vector<std::shared_ptr<standards::Limit>> limits_;
  xml::UnknownXml leftovers_;
};

}  // namespace host::standards
