#include "host/app/DocumentJson.h"

namespace bench {

namespace {

using Json = nlohmann::ordered_json;

Json JsonOf(const MeasurementSummary& measurement) {
  Json json;
  json["value"] = measurement.value ? Json(*measurement.value) : Json(nullptr);
  json["unit"] = measurement.unit;
  json["flags"] = measurement.flags;
  json["status"] = measurement.status;
  return json;
}

Json JsonOf(const ElementSummary& element) {
  Json json;
  json["id"] = element.id;
  json["parent"] = element.parent;
  json["testId"] = element.testId;
  json["kind"] = element.sequence ? "sequence" : "test";
  json["name"] = element.name;
  json["status"] = element.status;
  json["statusText"] = StatusText(element.status);
  json["mtiId"] = element.mtiId;
  json["serviceCode"] = element.serviceCode;
  json["serviceValue"] = element.serviceValue;
  json["measurement"] = element.measurement ? JsonOf(*element.measurement) : Json(nullptr);
  json["failedStandards"] = element.failedStandards;
  json["doubts"] = element.doubts;
  return json;
}

Json JsonOf(const InstrumentSummary& instrument) {
  Json json;
  json["type"] = instrument.type;
  json["serial"] = instrument.serial;
  json["firmware"] = instrument.firmware;
  json["calibration"] = instrument.calibration;
  return json;
}

}  // namespace

Json JsonOf(const DocumentSummary& document) {
  Json json;
  json["document"] = document.path;
  json["outcome"] = OutcomeText(document.outcome);
  json["instrument"] = document.instrument ? JsonOf(*document.instrument) : Json(nullptr);
  json["elements"] = Json::array();
  for (const auto& element : document.elements) json["elements"].push_back(JsonOf(element));
  return json;
}

std::string OneLine(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

std::string Indented(const Json& json) { return json.dump(2, ' ', false, Json::error_handler_t::replace); }

}  // namespace bench
