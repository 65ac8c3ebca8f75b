#include "host/standards/ElementLimits.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/standards/Units.h"

namespace host::standards {
namespace {

/// A limit without bounds in the element's unit, which is known to standards that the element creates.
std::shared_ptr<orvik::ILimit> NewLimit(orvik::ILimitData& limits) {
  const auto scratch = limits.CreateStandard("", "");
  auto limit = orvik::Required(scratch).Limit(1);
  orvik::Required(limits.Standards()).Remove(scratch);
  return limit;
}

std::string Converted(const std::string& bound, const std::string& from, const std::string& to) {
  // The limit itself refuses a text that is not a number, and says why.
  if (orvik::Trim(bound).empty() || !FiniteNumber(bound)) return bound;
  if (auto converted = InUnit(bound, from, to)) return *converted;
  throw orvik::HostError(
      orvik::HostError::kInvalidArgument, "orvik-bench",
      to.empty() ? Tr("the bound is in %%1, but the element is recorded without a unit", {from})
                 : Tr("a bound in %%1 does not fit the element, which is recorded in %%2", {from, to}));
}

std::vector<LimitOfElement> LimitsOf(const orvik::IStandard& standard) {
  std::vector<LimitOfElement> found;
  for (std::int32_t i = 1; i <= standard.LimitCount(); ++i) {
    const auto limit = standard.Limit(i);
    found.push_back(
        {standard.Name(), standard.Description(), limit->LowText(), limit->HighText(), limit->Unit()});
  }
  if (found.empty()) found.push_back({standard.Name(), standard.Description(), {}, {}, {}});
  return found;
}

}  // namespace

std::vector<LimitOfElement> LimitsOf(orvik::ILimitData& limits) {
  std::vector<LimitOfElement> found;
  const auto standards = limits.Standards();
  for (std::int32_t i = 1; standards && i <= standards->Count(); ++i) {
    const auto some = LimitsOf(*standards->item(i));
    found.insert(found.end(), some.begin(), some.end());
  }
  return found;
}

std::vector<LimitOfElement> RemoveStandards(orvik::ILimitData& limits,
                                            const std::function<bool(const orvik::IStandard&)>& fits) {
  std::vector<LimitOfElement> removed;
  const auto standards = limits.Standards();
  for (std::int32_t i = 1; standards && i <= standards->Count();) {
    const auto standard = standards->item(i);
    if (!fits(*standard)) {
      ++i;
      continue;
    }
    const auto some = LimitsOf(*standard);
    removed.insert(removed.end(), some.begin(), some.end());
    standards->Remove(standard);
  }
  return removed;
}

std::string RecordedUnit(orvik::ILimitData& limits) { return NewLimit(limits)->Unit(); }

std::shared_ptr<orvik::ILimit> SetLimit(orvik::ILimitData& limits, const EnteredLimit& entered) {
  const auto fresh = NewLimit(limits);
  const auto unit = fresh->Unit();
  const auto given = entered.unit.empty() ? unit : entered.unit;
  const auto low = Converted(entered.low, given, unit);
  const auto high = Converted(entered.high, given, unit);
  fresh->SetBounds(low, high);  // throws before anything is changed

  const auto standards = limits.Standards();
  auto standard = standards ? standards->Find(entered.standard, entered.description) : nullptr;
  if (!standard) standard = limits.CreateStandard(entered.standard, entered.description);
  auto& found = orvik::Required(standard);
  if (found.LimitCount() == 0) {
    found.AddLimit(fresh);
    return fresh;
  }
  auto limit = found.Limit(1);
  // With the unit: an older limit may have been entered in another one.
  limit->Initialize(fresh->Key(), unit, low, high);
  return limit;
}

}  // namespace host::standards
