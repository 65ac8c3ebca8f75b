#include "host/judge/Currency.h"

#include <array>
#include <utility>

#include "OrvikTypeLib/Codes.h"
#include "host/base/Text.h"
#include "host/judge/Reading.h"
#include "host/judge/Verdict.h"

namespace host::judge {
namespace {

std::string RunOf(const LastRecord& last) { return std::to_string(last.run->number); }

std::optional<document::Reason> OtherEquipment(const LastRecord& last, const document::Equipment& now) {
  const auto& then = last.run->equipment;
  const std::array<std::pair<const char*, std::pair<const std::string*, const std::string*>>, 4> fields{
      {{"asset", {&then.asset, &now.asset}},
       {"serial", {&then.serial, &now.serial}},
       {"maker", {&then.maker, &now.maker}},
       {"model", {&then.model, &now.model}}}};
  for (const auto& [name, values] : fields)
    if (*values.first != *values.second)
      return document::Reason{"other-equipment", {RunOf(last), name, *values.first, *values.second}};
  return {};
}

bool SameReading(const document::RecordedTest& test, const SavedResult& saved) {
  if (test.recorded.has_value() != saved.measured) return false;
  if (!saved.measured) return true;
  const auto recorded = FiniteNumber(test.recorded->value);
  if (recorded.has_value() != saved.value.has_value()) return false;
  if (recorded && !SameNumber(*recorded, *saved.value)) return false;
  return test.recorded->unit == saved.unit && test.recorded->flags == saved.flags;
}

std::optional<document::Reason> OtherResult(const CaseElement& element, const LastRecord& last) {
  const auto& test = *last.test;
  const auto status = element.result ? element.result->status : std::int32_t{orvik::ResultStatus::kNotTested};
  if (status != test.status)
    return document::Reason{"other-status", {RunOf(last), StatusText(test.status), StatusText(status)}};
  if (status != orvik::ResultStatus::kPassed && status != orvik::ResultStatus::kFailed) return {};
  const auto& saved = *element.result;
  if (!SameReading(test, saved)) return document::Reason{"other-reading", {RunOf(last)}};
  if (saved.measured && saved.measurementStatus != status)
    return document::Reason{"other-reading", {RunOf(last)}};
  return {};
}

}  // namespace

std::optional<document::Reason> NotCurrent(const CaseElement& element, const LastRecord& last,
                                           const document::Equipment& equipment) {
  if (!last.run)
    return element.result && element.result->status != orvik::ResultStatus::kNotTested
               ? document::Reason{"not-recorded", {}}
               : document::Reason{"never-run", {}};
  if (!last.test) return document::Reason{"not-finished", {RunOf(last)}};
  if (last.test->testId != element.testId)
    return document::Reason{"other-test", {RunOf(last), std::to_string(last.test->testId)}};
  if (auto reason = OtherEquipment(last, equipment)) return reason;
  if (last.test->settings != element.settings) return document::Reason{"other-settings", {RunOf(last)}};
  return OtherResult(element, last);
}

}  // namespace host::judge
