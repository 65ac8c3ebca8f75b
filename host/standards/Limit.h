#pragma once

#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>

#include "OrvikTypeLib/ILimit.h"
#include "host/xml/UnknownXml.h"

namespace host::standards {

/// Bounds of one measured quantity, saved as
/// `<Limit Key="NO LIMIT KEY" Unit="mOhm" Low="" High="300" Nominal=""/>`.
class Limit final : public orvik::ILimit {
 public:
  /// A code of `orvik::Judgement`. A value that is not a finite number exceeds every bound.
  /// @param nominal replaces the limit's own nominal value, if given
  std::int32_t Evaluate(float value, std::optional<double> nominal) const;

  std::shared_ptr<Limit> Copy() const;
  /// `XmlError` for bounds that `SetBounds` would refuse.
  void Load(pugi::xml_node node);
  void Save(pugi::xml_node parent) const;

 private:
  /// A bound as entered: a number, or a percentage of the nominal value.
  struct Bound {
    double number = 0;
    bool percent = false;
    double Resolved(std::optional<double> nominal) const {
      return percent ? nominal.value_or(0) * number / 100 : number;
    }
  };

  void ILimit_Initialize(const std::string& sKey, const std::string& sUnit, const std::string& sLow,
                         const std::string& sHigh) override;
  std::string ILimit_Key() const override { return key_; }
  std::string ILimit_Unit() const override { return unit_; }
  std::string ILimit_LowText() const override { return lowText_; }
  std::string ILimit_HighText() const override { return highText_; }
  void ILimit_SetBounds(const std::string& sLow, const std::string& sHigh) override;
  orvik::Variant ILimit_Nominal() const override;
  void ILimit_SetNominal(const orvik::Variant& vNominal) override;
  std::optional<double> ILimit_LowBound() const override { return Resolved(low_); }
  std::optional<double> ILimit_HighBound() const override { return Resolved(high_); }

  static std::optional<Bound> Parsed(const std::string& text);
  static void Check(const std::optional<Bound>& low, const std::optional<Bound>& high,
                    std::optional<double> nominal);
  std::optional<double> Resolved(const std::optional<Bound>& bound) const;

  std::string key_, unit_, lowText_, highText_;
  std::optional<Bound> low_, high_;
  std::optional<double> nominal_;
  xml::UnknownXml leftovers_;
};

}  // namespace host::standards
