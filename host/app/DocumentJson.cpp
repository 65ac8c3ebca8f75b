#include "host/app/DocumentJson.h"

#include "host/judge/ReasonText.h"

namespace bench {

namespace {

using Json = nlohmann::ordered_json;

Json NumberOrNull(const std::optional<double>& number) { return number ? Json(*number) : Json(nullptr); }

Json JsonOf(const judge::Measurement& measurement) {
  Json json;
  json["value"] = NumberOrNull(measurement.value);
  json["unit"] = measurement.unit;
  json["flags"] = measurement.flags;
  json["status"] = measurement.status;
  return json;
}

Json JsonOf(const judge::JudgedLimit& limit) {
  Json json;
  json["standard"] = limit.standard;
  json["description"] = limit.description;
  json["unit"] = limit.unit;
  json["low"] = NumberOrNull(limit.low);
  json["high"] = NumberOrNull(limit.high);
  json["selected"] = limit.selected;
  json["value"] = NumberOrNull(limit.value);
  json["verdict"] = judge::LimitVerdictText(limit.verdict);
  return json;
}

/// Those that make the element doubtful, as sentences.
std::vector<std::string> Doubts(const judge::JudgedElement& element) {
  std::vector<std::string> doubts;
  if (element.verdict != judge::Verdict::kDoubtful) return doubts;
  for (const auto& reason : element.reasons) doubts.push_back(judge::ReasonText(reason));
  return doubts;
}

}  // namespace

Json JsonOf(const Equipment& equipment) {
  Json json;
  json["asset"] = equipment.asset;
  json["serial"] = equipment.serial;
  json["maker"] = equipment.maker;
  json["model"] = equipment.model;
  return json;
}

Json JsonOf(const std::vector<Reason>& reasons) {
  Json json = Json::array();
  for (const auto& reason : reasons)
    json.push_back(
        {{"code", reason.code}, {"arguments", reason.arguments}, {"text", judge::ReasonText(reason)}});
  return json;
}

Json JsonOf(const RecordedTester& tester) {
  Json json;
  json["type"] = tester.type;
  json["serial"] = tester.serial;
  json["firmware"] = tester.firmware;
  json["calibration"] = tester.leads;
  json["calibrated"] = tester.leadsMeasured;
  return json;
}

Json JsonOf(const judge::JudgedElement& element) {
  Json json;
  json["id"] = element.id;
  json["parent"] = element.parent;
  json["testId"] = element.testId;
  json["kind"] = element.group ? "sequence" : "test";
  json["name"] = element.name;
  json["status"] = element.status;
  json["statusText"] = judge::StatusText(element.status);
  json["verdict"] = judge::VerdictText(element.verdict);
  json["judged"] = element.judged;
  json["recordOnly"] = element.recordOnly;
  json["reasons"] = JsonOf(element.reasons);
  json["mtiId"] = element.instrument;
  json["serviceCode"] = element.serviceCode;
  json["serviceValue"] = element.serviceValue;
  json["measurement"] = element.measurement ? JsonOf(*element.measurement) : Json(nullptr);
  json["limits"] = Json::array();
  for (const auto& limit : element.limits) json["limits"].push_back(JsonOf(limit));
  json["run"] = element.run;
  json["at"] = element.at;
  json["operator"] = element.by;
  json["failedStandards"] = element.FailedStandards();
  json["doubts"] = Doubts(element);
  return json;
}

Json JsonOf(const DocumentView& document) {
  Json json;
  json["document"] = document.path;
  json["outcome"] = judge::OutcomeText(document.judged.outcome);
  json["simulated"] = document.judged.simulated;
  json["run"] = document.judged.run;
  json["equipment"] = JsonOf(document.equipment);
  json["comment"] = document.comment;
  json["instrument"] = document.instrument ? JsonOf(*document.instrument) : Json(nullptr);
  json["standards"] = document.judged.standards;
  json["leftOut"] = document.judged.leftOut;
  json["elements"] = Json::array();
  for (const auto& element : document.judged.elements) json["elements"].push_back(JsonOf(element));
  return json;
}

std::string OneLine(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

std::string Indented(const Json& json) { return json.dump(2, ' ', false, Json::error_handler_t::replace); }

}  // namespace bench
