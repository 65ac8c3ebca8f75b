#include "tests/checker-plugin/checker/CCheckLimits.h"

#include <utility>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "tests/checker-plugin/template/TheHost.h"

namespace check {

std::shared_ptr<CCheckLimits> CCheckLimits::Create() {
  const std::shared_ptr<CCheckLimits> created(new CCheckLimits);
  created->standards_ = NewHostObject<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
  return created;
}

std::shared_ptr<orvik::ILimitData> CCheckLimits::ILimitData_Clone() const {
  auto copy = Create();
  copy->standards_ = standards_->Clone();
  return copy;
}

std::shared_ptr<orvik::IDialog> CCheckLimits::ILimitData_CreateDialog() { return {}; }

std::shared_ptr<orvik::IStandard> CCheckLimits::ILimitData_CreateStandard(const std::string& name,
                                                                          const std::string& description) {
  auto standard = NewHostObject<orvik::IStandard>(orvik::HostClasses::kStandard);
  standard->Initialize(name, description, 1);
  const auto limit = NewHostObject<orvik::ILimit>(orvik::HostClasses::kLimit);
  limit->Initialize("key", "V", "", "");
  standard->AddLimit(limit);
  standards_->Add(standard);
  return standard;
}

void CCheckLimits::ILimitData_Load(std::shared_ptr<orvik::IXmlNode> node,
                                   std::shared_ptr<orvik::IObject> context) {
  standards_->Load(std::move(node), std::move(context));
}

std::shared_ptr<orvik::IXmlNode> CCheckLimits::ILimitData_Save(
    std::shared_ptr<orvik::IXmlNode> parent) const {
  return standards_->Save(std::move(parent));
}

void CCheckLimits::ILimitData_PrintReport(std::shared_ptr<orvik::IReport> report,
                                          std::shared_ptr<orvik::IObject> context) {
  standards_->Print(std::move(report), std::move(context), {"key", "Limits", "0"});
}

void CCheckLimits::ILimitData_UpdateLimits(std::shared_ptr<orvik::IObject>) {}

std::shared_ptr<orvik::IStandardColl> CCheckLimits::ILimitData_FindFailedStandards(
    std::shared_ptr<orvik::IMeasurement>, std::shared_ptr<orvik::IStandardColl>) const {
  return {};
}

}  // namespace check
