#pragma once

#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {

/// The limits of an element, in the host's collection; for the control that edits them.
class CCheckLimits final : public orvik::ILimitData {
 public:
  static std::shared_ptr<CCheckLimits> Create() { return std::shared_ptr<CCheckLimits>(new CCheckLimits); }

 private:
  CCheckLimits() = default;

  std::string IObject_ClassID() const override { return {}; }
  std::string ILimitData_Description() const override { return {}; }
  void ILimitData_SetDescription(const std::string&) override {}
  bool ILimitData_HasDialog() const override { return false; }
  std::shared_ptr<orvik::IStandardColl> ILimitData_Standards() const override { return standards_; }
  std::shared_ptr<orvik::IObject> ILimitData_Owner() const override { return {}; }
  std::shared_ptr<orvik::ILimitData> ILimitData_Clone() const override {
    auto copy = Create();
    copy->standards_ = standards_->Clone();
    return copy;
  }
  std::shared_ptr<orvik::IDialog> ILimitData_CreateDialog() override { return {}; }
  std::shared_ptr<orvik::IStandard> ILimitData_CreateStandard(const std::string& name,
                                                              const std::string& description) override {
    auto standard = NewHostObject<orvik::IStandard>(orvik::HostClasses::kStandard);
    standard->Initialize(name, description, 1);
    const auto limit = NewHostObject<orvik::ILimit>(orvik::HostClasses::kLimit);
    limit->Initialize("key", "V", "", "");
    standard->AddLimit(limit);
    standards_->Add(standard);
    return standard;
  }
  void ILimitData_Load(std::shared_ptr<orvik::IXmlNode> node,
                       std::shared_ptr<orvik::IObject> context) override {
    standards_->Load(std::move(node), std::move(context));
  }
  std::shared_ptr<orvik::IXmlNode> ILimitData_Save(std::shared_ptr<orvik::IXmlNode> parent) const override {
    return standards_->Save(std::move(parent));
  }
  void ILimitData_PrintReport(std::shared_ptr<orvik::IReport> report,
                              std::shared_ptr<orvik::IObject> context) override {
    standards_->Print(std::move(report), std::move(context), {"key", "Limits", "0"});
  }
  void ILimitData_UpdateLimits(std::shared_ptr<orvik::IObject>) override {}
  std::shared_ptr<orvik::IStandardColl> ILimitData_FindFailedStandards(
      std::shared_ptr<orvik::IMeasurement>, std::shared_ptr<orvik::IStandardColl>) const override {
    return {};
  }

  std::shared_ptr<orvik::IStandardColl> standards_ =
      NewHostObject<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
};

}  // namespace check
