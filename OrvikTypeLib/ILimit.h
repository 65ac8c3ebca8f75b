#pragma once

#include <memory>
#include <optional>
#include <string>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"

namespace orvik {

/// Bounds of one measured quantity (class "OrvikTypeLib.Limit"). A bound is text: a number in the limit's
/// unit, or a number and "%" of the nominal value.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class ILimit : public virtual IObject {
 public:
  /// Sets key, unit and bounds; an empty bound is not set. `HostError` as for `SetBounds`.
  void Initialize(const std::string& sKey, const std::string& sUnit, const std::string& sLow,
                  const std::string& sHigh) {
    ILimit_Initialize(sKey, sUnit, sLow, sHigh);
  }
  /// The key that a measurement is matched by.
  std::string Key() const { return ILimit_Key(); }
  /// The unit that the bounds are in.
  std::string Unit() const { return ILimit_Unit(); }
  /// The lower bound as entered; empty when there is none.
  std::string LowText() const { return ILimit_LowText(); }
  /// The upper bound as entered; empty when there is none.
  std::string HighText() const { return ILimit_HighText(); }
  /// Replaces both bounds. `HostError` for a text that is not a number, a lower bound above the upper one, or
  /// a percentage without a nominal value; the bounds stay as they were.
  void SetBounds(const std::string& sLow, const std::string& sHigh) { ILimit_SetBounds(sLow, sHigh); }
  /// The value that percentages refer to; empty when there is none.
  Variant Nominal() const { return ILimit_Nominal(); }
  /// Sets the nominal value (a double) or clears it.
  void SetNominal(const Variant& vNominal) { ILimit_SetNominal(vNominal); }
  /// The lower bound in the limit's unit, percentages resolved; none when it is not set.
  std::optional<double> LowBound() const { return ILimit_LowBound(); }
  /// The upper bound in the limit's unit, percentages resolved; none when it is not set.
  std::optional<double> HighBound() const { return ILimit_HighBound(); }

 private:
  virtual void ILimit_Initialize(const std::string& sKey, const std::string& sUnit, const std::string& sLow,
                                 const std::string& sHigh) = 0;
  virtual std::string ILimit_Key() const = 0;
  virtual std::string ILimit_Unit() const = 0;
  virtual std::string ILimit_LowText() const = 0;
  virtual std::string ILimit_HighText() const = 0;
  virtual void ILimit_SetBounds(const std::string& sLow, const std::string& sHigh) = 0;
  virtual Variant ILimit_Nominal() const = 0;
  virtual void ILimit_SetNominal(const Variant& vNominal) = 0;
  virtual std::optional<double> ILimit_LowBound() const = 0;
  virtual std::optional<double> ILimit_HighBound() const = 0;
};

}  // namespace orvik
