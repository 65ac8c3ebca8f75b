#include "host/standards/Limit.h"

#include <cmath>

#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/xml/XmlNode.h"

namespace host::standards {
namespace {

using orvik::HostError;
using orvik::Judgement;

constexpr char kLimitSource[] = "OrvikTypeLib.Limit";
constexpr char kKey[] = "Key";
constexpr char kUnit[] = "Unit";
constexpr char kLow[] = "Low";
constexpr char kHigh[] = "High";
constexpr char kNominal[] = "Nominal";

[[noreturn]] void Refuse(const std::string& reason) {
  throw HostError(HostError::kInvalidArgument, kLimitSource, reason);
}

}  // namespace

void Limit::ILimit_Initialize(const std::string& sKey, const std::string& sUnit, const std::string& sLow,
                              const std::string& sHigh) {
  ILimit_SetBounds(sLow, sHigh);
  key_ = sKey;
  unit_ = sUnit;
}

std::optional<Limit::Bound> Limit::Parsed(const std::string& text) {
  auto number = orvik::Trim(text);
  if (number.empty()) return {};
  const bool percent = number.back() == '%';
  if (percent) number.pop_back();
  const auto value = FiniteNumber(number);
  if (!value)
    Refuse(
        Tr("the bound \"%%1\" is not a number; write for example 0.3 (with a point), or 110% of the nominal "
           "value",
           {text}));
  return Bound{*value, percent};
}

void Limit::Check(const std::optional<Bound>& low, const std::optional<Bound>& high,
                  std::optional<double> nominal) {
  if (!nominal && ((low && low->percent) || (high && high->percent)))
    Refuse(
        Tr("a bound in percent needs a nominal value, and the limit has none; enter the bound in its unit"));
  if (low && high && low->Resolved(nominal) > high->Resolved(nominal))
    Refuse(Tr("the lower bound is above the upper bound; swap them"));
}

void Limit::ILimit_SetBounds(const std::string& sLow, const std::string& sHigh) {
  const auto low = Parsed(sLow);
  const auto high = Parsed(sHigh);
  Check(low, high, nominal_);
  low_ = low;
  high_ = high;
  lowText_ = orvik::Trim(sLow);
  highText_ = orvik::Trim(sHigh);
}

orvik::Variant Limit::ILimit_Nominal() const {
  return nominal_ ? orvik::Variant(*nominal_) : orvik::Variant();
}

void Limit::ILimit_SetNominal(const orvik::Variant& vNominal) {
  std::optional<double> nominal;
  if (const auto* number = std::get_if<double>(&vNominal)) nominal = *number;
  if (const auto* whole = std::get_if<std::int32_t>(&vNominal)) nominal = *whole;
  if (!nominal && !orvik::IsEmpty(vNominal))
    throw HostError(HostError::kTypeMismatch, kLimitSource, Tr("the nominal value must be a number"));
  if (nominal && !std::isfinite(*nominal)) Refuse(Tr("the nominal value must be a finite number"));
  Check(low_, high_, nominal);
  nominal_ = nominal;
}

std::optional<double> Limit::Resolved(const std::optional<Bound>& bound) const {
  if (!bound) return {};
  return bound->Resolved(nominal_);
}

std::int32_t Limit::Evaluate(float value, std::optional<double> nominal) const {
  if (!low_ && !high_) return Judgement::kNothingToCheck;
  if (!std::isfinite(value)) return Judgement::kLimitExceeded;
  const auto reference = nominal ? nominal : nominal_;
  // The value is in single precision: so must the bound be, or 0.3 would exceed the bound 0.3.
  const auto bound = [&](const Bound& entered) { return static_cast<float>(entered.Resolved(reference)); };
  if (low_ && !(value >= bound(*low_))) return Judgement::kLimitExceeded;
  if (high_ && !(value <= bound(*high_))) return Judgement::kLimitExceeded;
  return Judgement::kWithinLimits;
}

std::shared_ptr<Limit> Limit::Copy() const {
  auto copy = std::make_shared<Limit>();
  copy->key_ = key_;
  copy->unit_ = unit_;
  copy->lowText_ = lowText_;
  copy->highText_ = highText_;
  copy->low_ = low_;
  copy->high_ = high_;
  copy->nominal_ = nominal_;
  copy->leftovers_ = leftovers_;
  return copy;
}

void Limit::Load(pugi::xml_node node) {
  const char *key = "", *unit = "", *low = "", *high = "", *nominal = "";
  leftovers_.Take(node, {{kKey, key}, {kUnit, unit}, {kLow, low}, {kHigh, high}, {kNominal, nominal}}, {});
  try {
    nominal_ = FiniteNumber(nominal);
    if (!nominal_ && *nominal) Refuse(Tr("the nominal value \"%%1\" is not a number", {nominal}));
    ILimit_Initialize(key, unit, low, high);
  } catch (const HostError& error) {
    throw xml::XmlError(node, error.Description());
  }
}

void Limit::Save(pugi::xml_node parent) const {
  const auto node = parent.append_child("Limit");
  xml::AddAttribute(node, kKey, key_);
  xml::AddAttribute(node, kUnit, unit_);
  if (low_) xml::AddAttribute(node, kLow, lowText_);
  if (high_) xml::AddAttribute(node, kHigh, highText_);
  if (nominal_) xml::AddAttribute(node, kNominal, ExactNumberText(*nominal_));
  leftovers_.Restore(node);
}

}  // namespace host::standards
