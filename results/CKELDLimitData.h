#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ILimitData.h"
#include "platform/Event.h"

namespace orvik {
class ITestElement;
}

namespace keld::results {

/// The limits of one element: it creates, copies, saves, prints and asks the host's collection of standards.
/// The host's standards decide whether a value is within a limit.
///
/// Errors of the host pass to the caller unchanged. A missing collection means that there are no limits.
class CKELDLimitData final : public orvik::ILimitData {
 public:
  /// Limits without a collection and without an owner.
  static std::shared_ptr<CKELDLimitData> Create();

  /// Adds a standard to the collection, which is created if there is none; empty adds nothing.
  void AddStandard(std::shared_ptr<orvik::IStandard> Standard);
  /// Replaces the limits by a deep copy of the source's; an empty source changes nothing. The owner is not
  /// copied.
  void CopyFrom(std::shared_ptr<const orvik::ILimitData> Source);
  /// Sets the element that owns the limits; it is not kept alive. Its `IKELDTest::ExpectedUnits` is the unit
  /// of new limits.
  void SetOwner(std::shared_ptr<orvik::ITestElement> iteOwner);

  /// Raised after the limits were printed, with the report header: limit key, heading, "0".
  orvik::platform::Event<const std::vector<std::string>&>& PrintAccessed() { return mPrintAccessed; }

 private:
  std::string IObject_ClassID() const override;
  std::string ILimitData_Description() const override { return {}; }
  void ILimitData_SetDescription(const std::string&) override {}
  bool ILimitData_HasDialog() const override { return true; }
  std::shared_ptr<orvik::IStandardColl> ILimitData_Standards() const override { return mStandards; }
  std::shared_ptr<orvik::IObject> ILimitData_Owner() const override;
  std::shared_ptr<orvik::ILimitData> ILimitData_Clone() const override;
  std::shared_ptr<orvik::IDialog> ILimitData_CreateDialog() override;
  std::shared_ptr<orvik::IStandard> ILimitData_CreateStandard(const std::string& sName,
                                                              const std::string& sDescription) override;
  void ILimitData_Load(std::shared_ptr<orvik::IXmlNode> Node,
                       std::shared_ptr<orvik::IObject> Context) override;
  std::shared_ptr<orvik::IXmlNode> ILimitData_Save(std::shared_ptr<orvik::IXmlNode> Parent) const override;
  void ILimitData_PrintReport(std::shared_ptr<orvik::IReport> Report,
                              std::shared_ptr<orvik::IObject> Context) override;
  void ILimitData_UpdateLimits(std::shared_ptr<orvik::IObject>) override {}
  std::shared_ptr<orvik::IStandardColl> ILimitData_FindFailedStandards(
      std::shared_ptr<orvik::IMeasurement> Measurement,
      std::shared_ptr<orvik::IStandardColl> Standards) const override;

  std::string ExpectedUnits() const;
  bool HasStandards() const;

  std::shared_ptr<orvik::IStandardColl> mStandards;
  // Weak: the owner holds the limits.
  std::weak_ptr<orvik::ITestElement> mOwner;
  orvik::platform::Event<const std::vector<std::string>&> mPrintAccessed;
};

}  // namespace keld::results
