#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/ITestElement.h"

namespace check {

class CInspectionResult;

/// A test: the operator says whether the equipment looks undamaged.
///
/// It wraps the host's standard element, which keeps identity, parent, texts, configuration, limits and
/// result, and saves, loads and clones them. The plug-in adds what is its own: its class, its result, and the
/// run.
class CInspection final : public orvik::ITestElement {
 public:
  /// Names of the window and its buttons, by which programs operate it.
  static constexpr char kForm[] = "FInspection";
  static constexpr char kUndamaged[] = "cmdUndamaged";
  static constexpr char kDamaged[] = "cmdDamaged";

  static std::shared_ptr<CInspection> Create();

 private:
  CInspection() = default;

  std::string IObject_ClassID() const override;

  // The plug-in's own.
  std::shared_ptr<orvik::ITestElement> ITestElement_Clone() const override;
  void ITestElement_Load(std::shared_ptr<orvik::IXmlNode> node,
                         std::shared_ptr<orvik::IObject> context) override;
  void ITestElement_Perform(std::shared_ptr<orvik::IRunController> controller) override;

  // Passed to the host's element unchanged.
  void ITestElement_Initialize(const std::string& plugInId, std::int32_t elementId,
                               std::int32_t testId) override;
  void ITestElement_Terminate() override { base_->Terminate(); }
  std::shared_ptr<orvik::IXmlNode> ITestElement_Save(std::shared_ptr<orvik::IXmlNode> parent) const override;
  orvik::Variant ITestElement_Info() const override { return base_->Info(); }
  bool ITestElement_QuerySetParent(std::shared_ptr<orvik::ITestElement> parent) const override;
  void ITestElement_UpdateReferences() override { base_->UpdateReferences(); }
  std::shared_ptr<orvik::IConfigData> ITestElement_Configuration() const override;
  std::shared_ptr<orvik::ILimitData> ITestElement_Limits() const override;
  std::shared_ptr<orvik::IResultData> ITestElement_Result() const override;
  void ITestElement_PrintReport(std::shared_ptr<orvik::IReport> report,
                                std::shared_ptr<orvik::IObject> context) override;
  std::int32_t ITestElement_ID() const override { return base_->ID(); }
  void ITestElement_SetID(std::int32_t id) override { base_->SetID(id); }
  std::shared_ptr<orvik::ITestElement> ITestElement_Parent() const override { return base_->Parent(); }
  void ITestElement_SetParent(std::shared_ptr<orvik::ITestElement> parent) override;
  std::int32_t ITestElement_TestID() const override { return base_->TestID(); }
  std::string ITestElement_PlugInID() const override { return base_->PlugInID(); }
  std::shared_ptr<orvik::IInformationRecord> ITestElement_Information() const override;
  orvik::Variant ITestElement_Filter() const override { return base_->Filter(); }
  orvik::Variant ITestElement_GetMeasurementList() const override { return base_->GetMeasurementList(); }

  void Wrap(std::shared_ptr<orvik::IBaseElement> base);
  std::shared_ptr<CInspectionResult> NewResult();

  std::shared_ptr<orvik::IBaseElement> base_;
};

}  // namespace check
