#include "host/standards/Standard.h"

#include <algorithm>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/Conversions.h"
#include "host/base/Tr.h"
#include "host/standards/Limit.h"
#include "host/xml/XmlNode.h"

namespace host::standards {
namespace {

using orvik::HostError;

constexpr char kStandardSource[] = "OrvikTypeLib.Standard";
constexpr char kName[] = "Name";
constexpr char kDescription[] = "Description";
constexpr char kNumber[] = "Number";
constexpr char kLimit[] = "Limit";

}  // namespace

void Standard::IStandard_Initialize(const std::string& sName, const std::string& sDescription,
                                    std::int32_t lNumber) {
  name_ = sName;
  description_ = sDescription;
  number_ = lNumber;
}

std::shared_ptr<orvik::ILimit> Standard::IStandard_Limit(std::int32_t lIndex) const {
  if (lIndex < 1 || static_cast<std::size_t>(lIndex) > limits_.size())
    throw HostError(
        HostError::kSubscriptOutOfRange, kStandardSource,
        Tr("limit %%1 is out of range (1 to %%2)", {std::to_string(lIndex), std::to_string(limits_.size())}));
  return limits_[static_cast<std::size_t>(lIndex) - 1];
}

void Standard::IStandard_AddLimit(std::shared_ptr<orvik::ILimit> Limit) {
  auto limit = orvik::As<standards::Limit>(Limit);
  if (!limit)
    throw HostError(HostError::kTypeMismatch, kStandardSource,
                    Tr("only a limit of the class \"OrvikTypeLib.Limit\" can be added"));
  limits_.push_back(std::move(limit));
}

std::int32_t Standard::IStandard_Evaluate(float rValue, const std::string& sKey,
                                          const orvik::Variant& vNominal) const {
  std::optional<double> nominal;
  if (!orvik::IsEmpty(vNominal)) nominal = orvik::NumericValue(vNominal);
  std::int32_t worst = orvik::Judgement::kNothingToCheck;
  for (const auto& limit : limits_) {
    if (limit->Key() == sKey) worst = std::max(worst, limit->Evaluate(rValue, nominal));
  }
  return worst;
}

std::shared_ptr<Standard> Standard::Copy() const {
  auto copy = std::make_shared<Standard>();
  copy->name_ = name_;
  copy->description_ = description_;
  copy->number_ = number_;
  for (const auto& limit : limits_) copy->limits_.push_back(limit->Copy());
  copy->leftovers_ = leftovers_;
  return copy;
}

void Standard::Load(pugi::xml_node node) {
  const char *name = "", *description = "", *number = nullptr;
  leftovers_.TakeAttributes(node, {{kName, name}, {kDescription, description}, {kNumber, number}});
  name_ = name;
  description_ = description;
  number_ = number ? xml::NumberIn(number, node, kNumber) : 1;
  limits_.clear();
  for (auto child = node.first_child(); child; child = child.next_sibling()) {
    if (xml::IsElement(child, kLimit)) {
      limits_.push_back(std::make_shared<standards::Limit>());
      limits_.back()->Load(child);
    } else {
      leftovers_.Add(child);
    }
  }
}

void Standard::Save(pugi::xml_node parent) const {
  const auto node = parent.append_child("Standard");
  xml::AddAttribute(node, kName, name_);
  xml::AddAttribute(node, kDescription, description_);
  xml::AddAttribute(node, kNumber, std::to_string(number_));
  for (const auto& limit : limits_) limit->Save(node);
  leftovers_.Restore(node);
}

}  // namespace host::standards
