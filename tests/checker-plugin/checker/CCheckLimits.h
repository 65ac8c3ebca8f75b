#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandardColl.h"

namespace check {

/// Limits as an element of a plug-in has them, kept in the host's collection; for the control that edits
/// them.
class CCheckLimits final : public orvik::ILimitData {
 public:
  static std::shared_ptr<CCheckLimits> Create();

 private:
  CCheckLimits() = default;

  std::string IObject_ClassID() const override { return {}; }
  std::string ILimitData_Description() const override { return {}; }
  void ILimitData_SetDescription(const std::string&) override {}
  bool ILimitData_HasDialog() const override { return false; }
  std::shared_ptr<orvik::IStandardColl> ILimitData_Standards() const override { return standards_; }
  std::shared_ptr<orvik::IObject> ILimitData_Owner() const override { return {}; }
  std::shared_ptr<orvik::ILimitData> ILimitData_Clone() const override;
  std::shared_ptr<orvik::IDialog> ILimitData_CreateDialog() override;
  std::shared_ptr<orvik::IStandard> ILimitData_CreateStandard(const std::string& name,
                                                              const std::string& description) override;
  void ILimitData_Load(std::shared_ptr<orvik::IXmlNode> node,
                       std::shared_ptr<orvik::IObject> context) override;
  std::shared_ptr<orvik::IXmlNode> ILimitData_Save(std::shared_ptr<orvik::IXmlNode> parent) const override;
  void ILimitData_PrintReport(std::shared_ptr<orvik::IReport> report,
                              std::shared_ptr<orvik::IObject> context) override;
  void ILimitData_UpdateLimits(std::shared_ptr<orvik::IObject> reference) override;
  std::shared_ptr<orvik::IStandardColl> ILimitData_FindFailedStandards(
      std::shared_ptr<orvik::IMeasurement> measurement,
      std::shared_ptr<orvik::IStandardColl> standards) const override;

  std::shared_ptr<orvik::IStandardColl> standards_;
};

}  // namespace check
