#include "host/judge/Currency.h"

#include <array>
#include <utility>

#include "OrvikTypeLib/Codes.h"
#include "host/base/Text.h"
#include "host/judge/Reading.h"
#include "host/judge/Verdict.h"

namespace bench::judge {
namespace {

std::string RunOf(const LastRecord& last) { return std::to_string(last.run->number); }

std::optional<Reason> OtherEquipment(const LastRecord& last, const Equipment& now) {
  const auto& then = last.run->equipment;
  const std::array<std::pair<const char*, std::pair<const std::string*, const std::string*>>, 4> fields{
      {{"asset", {&then.asset, &now.asset}},
       {"serial", {&then.serial, &now.serial}},
       {"maker", {&then.maker, &now.maker}},
       {"model", {&then.model, &now.model}}}};
  for (const auto& [name, values] : fields)
    if (*values.first != *values.second)
      return Reason{"other-equipment", {RunOf(last), name, *values.first, *values.second}};
  return {};
}

bool SameReading(const RecordedTest& test, const SavedResult& saved) {
  if (test.recorded.has_value() != saved.measured) return false;
  if (!saved.measured) return true;
  const auto recorded = FiniteNumber(test.recorded->value);
  if (recorded.has_value() != saved.value.has_value()) return false;
  if (recorded && !SameNumber(*recorded, *saved.value)) return false;
  return test.recorded->unit == saved.unit && test.recorded->flags == saved.flags;
}

std::optional<Reason> OtherResult(const CaseElement& element, const LastRecord& last) {
  const auto& test = *last.test;
  const auto status = element.result ? element.result->status : std::int32_t{orvik::ResultStatus::kNotTested};
  if (status != test.status)
    return Reason{"other-status", {RunOf(last), StatusText(test.status), StatusText(status)}};
  if (status != orvik::ResultStatus::kPassed && status != orvik::ResultStatus::kFailed) return {};
  const auto& saved = *element.result;
  if (!SameReading(test, saved)) return Reason{"other-reading", {RunOf(last)}};
  if (saved.measured && saved.measurementStatus != status) return Reason{"other-reading", {RunOf(last)}};
  return {};
}

}  // namespace

std::optional<Reason> NotCurrent(const CaseElement& element, const LastRecord& last,
                                 const Equipment& equipment) {
  if (!last.run)
    return element.result && element.result->status != orvik::ResultStatus::kNotTested
               ? Reason{"not-recorded", {}}
               : Reason{"never-run", {}};
  if (!last.test) return Reason{"not-finished", {RunOf(last)}};
  if (last.test->testId != element.testId)
    return Reason{"other-test", {RunOf(last), std::to_string(last.test->testId)}};
  if (auto reason = OtherEquipment(last, equipment)) return reason;
  if (last.test->settings != element.settings) return Reason{"other-settings", {RunOf(last)}};
  return OtherResult(element, last);
}

}  // namespace bench::judge
