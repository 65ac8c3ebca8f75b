#include "host/cli/output/DocumentJson.h"

#include <nlohmann/json.hpp>

#include "host/judge/ReasonText.h"

namespace host::cli {

namespace {

using Json = nlohmann::ordered_json;

Json JsonOf(const judge::Measurement& measurement) {
  return {{"value", NumberOrNull(measurement.value)},
          {"unit", measurement.unit},
          {"flags", measurement.flags},
          {"status", measurement.status}};
}

Json JsonOf(const judge::JudgedLimit& limit) {
  return {{"standard", limit.standard},
          {"description", limit.description},
          {"unit", limit.unit},
          {"low", NumberOrNull(limit.low)},
          {"high", NumberOrNull(limit.high)},
          {"selected", limit.selected},
          {"value", NumberOrNull(limit.value)},
          {"verdict", judge::LimitVerdictText(limit.verdict)}};
}

/// Those that make the element doubtful, as sentences.
std::vector<std::string> Doubts(const judge::JudgedElement& element) {
  std::vector<std::string> doubts;
  if (element.verdict != judge::Verdict::kDoubtful) return doubts;
  for (const auto& reason : element.reasons) doubts.push_back(judge::ReasonText(reason));
  return doubts;
}

}  // namespace

Json NumberOrNull(const std::optional<double>& number) { return number ? Json(*number) : Json(nullptr); }

Json JsonOf(const document::Equipment& equipment) {
  return {{"asset", equipment.asset},
          {"serial", equipment.serial},
          {"maker", equipment.maker},
          {"model", equipment.model}};
}

Json JsonOf(const std::vector<document::Reason>& reasons) {
  auto json = Json::array();
  for (const auto& reason : reasons)
    json.push_back(
        {{"code", reason.code}, {"arguments", reason.arguments}, {"text", judge::ReasonText(reason)}});
  return json;
}

Json JsonOf(const document::RecordedTester& tester) {
  return {{"type", tester.type},
          {"serial", tester.serial},
          {"firmware", tester.firmware},
          {"calibration", tester.leads},
          {"calibrated", tester.leadsMeasured}};
}

Json JsonOf(const judge::JudgedElement& element) {
  auto limits = Json::array();
  for (const auto& limit : element.limits) limits.push_back(JsonOf(limit));
  return {{"id", element.id},
          {"parent", element.parent},
          {"testId", element.testId},
          {"kind", element.group ? "sequence" : "test"},
          {"name", element.name},
          {"status", element.status},
          {"statusText", judge::StatusText(element.status)},
          {"verdict", judge::VerdictText(element.verdict)},
          {"judged", element.judged},
          {"recordOnly", element.recordOnly},
          {"reasons", JsonOf(element.reasons)},
          {"mtiId", element.instrument},
          {"serviceCode", element.serviceCode},
          {"serviceValue", element.serviceValue},
          {"measurement", element.measurement ? JsonOf(*element.measurement) : Json(nullptr)},
          {"limits", std::move(limits)},
          {"run", element.run},
          {"at", element.at},
          {"operator", element.by},
          {"failedStandards", element.FailedStandards()},
          {"doubts", Doubts(element)}};
}

Json JsonOf(const report::DocumentView& document) {
  auto elements = Json::array();
  for (const auto& element : document.judged.elements) elements.push_back(JsonOf(element));
  return {{"document", document.path},
          {"outcome", judge::OutcomeText(document.judged.outcome)},
          {"simulated", document.judged.simulated},
          {"run", document.judged.run},
          {"equipment", JsonOf(document.equipment)},
          {"comment", document.comment},
          {"instrument", document.instrument ? JsonOf(*document.instrument) : Json(nullptr)},
          {"standards", document.judged.standards},
          {"leftOut", document.judged.leftOut},
          {"elements", std::move(elements)}};
}

std::string OneLine(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

std::string Indented(const Json& json) { return json.dump(2, ' ', false, Json::error_handler_t::replace); }

}  // namespace host::cli
