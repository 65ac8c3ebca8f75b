#include "host/app/archive/ArchiveCommandJson.h"

#include "host/app/DocumentJson.h"

namespace bench {

namespace {

using Json = nlohmann::ordered_json;

template <class T>
Json OrNull(const std::optional<T>& value) {
  return value ? Json(*value) : Json(nullptr);
}

/// Dates and operators that are not told.
Json OrNull(const std::string& text) { return text.empty() ? Json(nullptr) : Json(text); }

Json JsonOf(const std::vector<StandardLimit>& limits) {
  Json all = Json::array();
  for (const auto& limit : limits) {
    Json json;
    json["standard"] = limit.standard;
    json["description"] = limit.description;
    json["low"] = OrNull(limit.low);
    json["high"] = OrNull(limit.high);
    json["unit"] = limit.unit;
    all.push_back(std::move(json));
  }
  return all;
}

Json JsonOf(const TrendPoint& point) {
  const auto& summary = point.element.summary;
  const auto& measurement = summary.measurement;
  Json json;
  json["document"] = point.document;
  json["date"] = point.date;
  json["dated"] = point.dated;
  json["serial"] = point.serial;
  json["element"] = summary.id;
  json["name"] = summary.name;
  json["value"] = measurement ? OrNull(measurement->value) : Json(nullptr);
  json["unit"] = measurement ? measurement->unit : "";
  json["flags"] = measurement ? measurement->flags : "";
  json["overload"] = point.Overloaded();
  json["status"] = summary.status;
  json["statusText"] = judge::StatusText(summary.status);
  json["verdict"] = judge::VerdictText(summary.verdict);
  json["limits"] = JsonOf(point.element.limits);
  json["failedStandards"] = summary.FailedStandards();
  json["reasons"] = bench::JsonOf(summary.reasons);
  return json;
}

}  // namespace

Json JsonOf(const ArchiveEntry& entry) {
  Json json;
  json["id"] = entry.id;
  json["revision"] = entry.revision;
  json["revisions"] = entry.revisions;
  json["document"] = entry.path;
  json["bench"] = entry.bench;
  json["asset"] = entry.asset;
  json["serial"] = entry.serial;
  json["maker"] = entry.maker;
  json["model"] = entry.model;
  json["outcome"] = entry.outcome;
  json["finished"] = entry.finished;
  json["date"] = entry.Date();
  json["runDate"] = OrNull(entry.runDate);
  json["operator"] = OrNull(entry.operatorName);
  json["added"] = entry.added;
  json["sha256"] = entry.hash;
  return json;
}

Json JsonOf(const ArchivedDocument& document) {
  auto json = JsonOf(ViewOf(document));
  for (std::size_t i = 0; i < document.elements.size(); ++i) {
    auto& element = json["elements"][i];
    element["limits"] = JsonOf(document.elements[i].limits);
    element["runDate"] = OrNull(document.elements[i].runDate);
    element["operator"] = OrNull(document.elements[i].operatorName);
  }
  json["archive"] = JsonOf(document.entry);
  return json;
}

Json JsonOf(const Trend& trend) {
  Json json;
  json["asset"] = trend.asset;
  json["testId"] = trend.testId;
  json["points"] = Json::array();
  for (const auto& point : trend.points) json["points"].push_back(JsonOf(point));
  return json;
}

DocumentView ViewOf(const ArchivedDocument& document) {
  DocumentView view;
  view.path = document.entry.path;
  view.equipment = {document.entry.asset, document.entry.serial, document.entry.maker, document.entry.model};
  if (const auto& instrument = document.instrument)
    view.instrument = RecordedTester{
        instrument->type, instrument->serial, instrument->firmware, instrument->calibration, {}};
  for (const auto& element : document.elements) view.judged.elements.push_back(element.summary);
  view.judged.outcome = judge::OutcomeOf(view.judged.elements);
  return view;
}

}  // namespace bench
