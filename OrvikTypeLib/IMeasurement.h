#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"

namespace orvik {

class IXmlNode;

/// One measured quantity of a result.
///
/// Implemented by: the host and the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class IMeasurement : public virtual IObject {
 public:
  /// Descriptive text, often a language string.
  std::string Description() const { return IMeasurement_Description(); }
  /// The measurement's key.
  std::string Key() const { return IMeasurement_Key(); }
  /// The key by which limits are matched.
  std::string LimitKey() const { return IMeasurement_LimitKey(); }
  /// A code of `MeasurementStatus`.
  std::int32_t Status() const { return IMeasurement_Status(); }
  /// The unit.
  std::string Unit() const { return IMeasurement_Unit(); }
  /// The measured value; empty when there is none.
  Variant value() const { return IMeasurement_value(); }
  /// A value set beforehand; empty when there is none.
  Variant PresetValue() const { return IMeasurement_PresetValue(); }
  /// The host's value type: 2 is a number.
  std::int32_t ValueType() const { return IMeasurement_ValueType(); }
  /// The format string for display: "0" is a whole number.
  std::string ValueFormat() const { return IMeasurement_ValueFormat(); }
  /// Flags; "O" marks an overload.
  std::string Flags() const { return IMeasurement_Flags(); }
  /// Tool tip; often empty.
  std::string ToolTipText() const { return IMeasurement_ToolTipText(); }
  /// Reads the measurement from a "Measurement" node.
  void Load(std::shared_ptr<IXmlNode> Node) { IMeasurement_Load(std::move(Node)); }
  /// Adds a "Measurement" node to the parent and returns it.
  std::shared_ptr<IXmlNode> Save(std::shared_ptr<IXmlNode> Parent) const {
    return IMeasurement_Save(std::move(Parent));
  }

 private:
  virtual std::string IMeasurement_Description() const = 0;
  virtual std::string IMeasurement_Key() const = 0;
  virtual std::string IMeasurement_LimitKey() const = 0;
  virtual std::int32_t IMeasurement_Status() const = 0;
  virtual std::string IMeasurement_Unit() const = 0;
  virtual Variant IMeasurement_value() const = 0;
  virtual Variant IMeasurement_PresetValue() const = 0;
  virtual std::int32_t IMeasurement_ValueType() const = 0;
  virtual std::string IMeasurement_ValueFormat() const = 0;
  virtual std::string IMeasurement_Flags() const = 0;
  virtual std::string IMeasurement_ToolTipText() const = 0;
  virtual void IMeasurement_Load(std::shared_ptr<IXmlNode> Node) = 0;
  virtual std::shared_ptr<IXmlNode> IMeasurement_Save(std::shared_ptr<IXmlNode> Parent) const = 0;
};

}  // namespace orvik
