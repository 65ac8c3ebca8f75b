#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"

namespace orvik {

class ILimit;

/// A standard: two identifying strings and its limits (class "OrvikTypeLib.Standard").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IStandard : public virtual IObject {
 public:
  /// Gives the standard its identifying strings and its revision number (1).
  void Initialize(const std::string& sName, const std::string& sDescription, std::int32_t lNumber) {
    IStandard_Initialize(sName, sDescription, lNumber);
  }
  /// First identifying string, for example "IEC 62353".
  std::string Name() const { return IStandard_Name(); }
  /// Second identifying string, for example "class I, BF".
  std::string Description() const { return IStandard_Description(); }
  /// The revision number of the set of limits.
  std::int32_t Number() const { return IStandard_Number(); }
  /// Number of limits.
  std::int32_t LimitCount() const { return IStandard_LimitCount(); }
  /// The limit at the index, counted from 1; `HostError` 9 outside.
  std::shared_ptr<ILimit> Limit(std::int32_t lIndex) const { return IStandard_Limit(lIndex); }
  /// Adds a limit.
  void AddLimit(std::shared_ptr<ILimit> Limit) { IStandard_AddLimit(std::move(Limit)); }
  /// Judges a value by the limits of that key; bounds are inclusive.
  /// @param vNominal replaces the nominal value of the limits; empty keeps it
  /// @return the worst `Judgement` of these limits
  std::int32_t Evaluate(float rValue, const std::string& sKey, const Variant& vNominal) const {
    return IStandard_Evaluate(rValue, sKey, vNominal);
  }

 private:
  virtual void IStandard_Initialize(const std::string& sName, const std::string& sDescription,
                                    std::int32_t lNumber) = 0;
  virtual std::string IStandard_Name() const = 0;
  virtual std::string IStandard_Description() const = 0;
  virtual std::int32_t IStandard_Number() const = 0;
  virtual std::int32_t IStandard_LimitCount() const = 0;
  virtual std::shared_ptr<ILimit> IStandard_Limit(std::int32_t lIndex) const = 0;
  virtual void IStandard_AddLimit(std::shared_ptr<ILimit> Limit) = 0;
  virtual std::int32_t IStandard_Evaluate(float rValue, const std::string& sKey,
                                          const Variant& vNominal) const = 0;
};

}  // namespace orvik
