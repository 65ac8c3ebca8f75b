#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/Variant.h"
#include "plugin/base/MKELDConstants.h"

namespace keld::instrument {

/// One measured quantity of a result: description, value, unit, flags and status. A failing host call is
/// skipped.
class CKELDMeasurement final : public orvik::IMeasurement {
 public:
  static std::shared_ptr<CKELDMeasurement> Create();

  /// Text, normally a language string.
  void SetDescription(const std::string& sNewDescription);
  /// A code of `orvik::MeasurementStatus`.
  std::int32_t Status() const { return lStatus; }
  void SetStatus(std::int32_t lNewStatus);

  /// Adds to the value, and replaces unit and flags ("O" marks an overload).
  ///
  /// An empty value plus x is x. Numbers add up as integers while both are and the sum fits, else as doubles;
  /// texts count by their number. A text that is not a number cannot be added and leaves the value
  /// unchanged.
  void AddValue(const orvik::Variant& vAdded, const std::string& sNewUnit, const std::string& sNewFlags,
                const std::string& sIgnored);

  /// The measurement as one row of a report table: empty cell, description, whole-number value, unit. The
  /// report escapes what would read as markup.
  std::string ReportLine(const std::shared_ptr<orvik::IReport>& Report) const;

  /// Whether the measurement fails one of the standards by these limits. Without limits or standards it does
  /// not; a judgement that ends with an error counts as failed, so that it never passes.
  bool FailsLimits(const std::shared_ptr<orvik::ILimitData>& Limits,
                   const std::shared_ptr<orvik::IStandardColl>& Standards);

 private:
  std::string IObject_ClassID() const override;
  std::string IMeasurement_Description() const override { return sDescription; }
  std::string IMeasurement_Key() const override { return "::"; }
  std::string IMeasurement_LimitKey() const override { return MKELDConstants::kLimitKey; }
  std::int32_t IMeasurement_Status() const override { return lStatus; }
  std::string IMeasurement_Unit() const override { return sUnit; }
  orvik::Variant IMeasurement_value() const override { return vValue; }
  orvik::Variant IMeasurement_PresetValue() const override { return {}; }
  std::int32_t IMeasurement_ValueType() const override { return 2; }
  std::string IMeasurement_ValueFormat() const override;
  std::string IMeasurement_Flags() const override { return sFlags; }
  std::string IMeasurement_ToolTipText() const override { return {}; }
  void IMeasurement_Load(std::shared_ptr<orvik::IXmlNode> Node) override;
  std::shared_ptr<orvik::IXmlNode> IMeasurement_Save(std::shared_ptr<orvik::IXmlNode> Parent) const override;

  void LoadChild(const std::string& sName, const std::shared_ptr<orvik::IXmlNode>& Child);

  orvik::Variant vValue;
  std::string sFlags;
  std::string sUnit;
  std::int32_t lStatus = 0;
  std::string sDescription;
};

}  // namespace keld::instrument
