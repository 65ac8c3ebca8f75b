#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IConfigData.h"
#include "plugin/configuration/ConfigurationTables.h"

namespace orvik {
class ITestElement;
}

namespace keld::configuration {

/// The settings of one test or sequence: which extra buttons the test guide offers, which leads a leakage
/// test covers, which measured values of a group are kept.
///
/// Saved as `<PlugInData><KELDConfig Options="3" ValueFilter="No values"/></PlugInData>` inside the host's
/// "Configuration" record. Errors inside the host interface's operations are ignored.
class CKELDTestConfiguration final : public orvik::IConfigData {
 public:
  static std::shared_ptr<CKELDTestConfiguration> Create();

  /// Option bits: 1 NA button, 2 skip button, 4 to 2048 leads 1 to 10, 4096 all leads. 3 in a new object.
  std::int32_t Options() const { return mlOptions; }
  void SetOptions(std::int32_t lOptions) { mlOptions = lOptions; }
  /// Value filter: 1 no values, 2 all, 3 maximum, 4 minimum; 0 after an unknown name. 1 in a new object.
  std::int32_t ValueFilter() const { return mlValueFilter; }
  void SetValueFilter(std::int32_t lValueFilter) { mlValueFilter = lValueFilter; }
  /// The element that owns the configuration, or empty. Not kept alive.
  std::shared_ptr<orvik::ITestElement> Owner() const { return miteOwner.lock(); }
  void SetOwner(const std::shared_ptr<orvik::ITestElement>& iteOwner) { miteOwner = iteOwner; }

  /// The owner's test identifier as a 16-bit integer, which decides about leads; 0 without an owner.
  std::int16_t OwnerTestID() const;

 private:
  std::string IObject_ClassID() const override;
  std::shared_ptr<orvik::IConfigData> IConfigData_Clone() const override;
  std::shared_ptr<orvik::IDialog> IConfigData_CreateDialog() override;
  bool IConfigData_HasDialog() const override;
  void IConfigData_Load(std::shared_ptr<orvik::IXmlNode> Node) override;
  void IConfigData_Save(std::shared_ptr<orvik::IXmlNode> Node) const override;
  void IConfigData_PrintReport(std::shared_ptr<orvik::IReport> Report) const override;

  std::int32_t mlOptions = ConfigurationTables::kDefaultOptions;
  std::int32_t mlValueFilter = ConfigurationTables::kDefaultValueFilter;
  std::weak_ptr<orvik::ITestElement> miteOwner;
};

}  // namespace keld::configuration
