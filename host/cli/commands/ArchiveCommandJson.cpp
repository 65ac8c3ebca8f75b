#include "host/cli/commands/ArchiveCommandJson.h"

#include <algorithm>

#include "host/cli/output/DocumentJson.h"

namespace host::cli {

namespace {

using Json = nlohmann::ordered_json;

/// Dates and operators that are not recorded.
Json OrNull(const std::string& text) { return text.empty() ? Json(nullptr) : Json(text); }

Json JsonOf(const archive::TrendPoint& point) {
  const auto& measurement = point.element.result.measurement;
  Json json;
  json["document"] = point.document;
  json["date"] = point.date;
  json["dated"] = point.dated;
  json["added"] = point.added;
  json["serial"] = point.serial;
  json["element"] = point.element.result.id;
  json["value"] = measurement && measurement->value ? Json(*measurement->value) : Json(nullptr);
  json["unit"] = point.Unit();
  json["flags"] = measurement ? measurement->flags : "";
  json["overload"] = point.Overloaded();
  auto element = cli::JsonOf(point.element.result);
  for (const char* shared : {"name", "run", "operator", "status", "statusText", "verdict", "judged",
                             "recordOnly", "limits", "failedStandards", "reasons", "doubts"})
    json[shared] = std::move(element[shared]);
  return json;
}

/// Those by which the document was judged, each once.
std::vector<std::string> StandardsOf(const archive::ArchivedDocument& document) {
  std::vector<std::string> names;
  for (const auto& element : document.elements)
    for (const auto& limit : element.result.limits)
      if (limit.selected && std::find(names.begin(), names.end(), limit.standard) == names.end())
        names.push_back(limit.standard);
  return names;
}

}  // namespace

Json JsonOf(const archive::ArchiveEntry& entry) {
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
  json["outcome"] = judge::OutcomeText(entry.outcome);
  json["finished"] = entry.finished;
  json["simulated"] = entry.simulated;
  json["run"] = entry.run;
  json["date"] = entry.Date();
  json["runDate"] = OrNull(entry.runDate);
  json["operator"] = OrNull(entry.operatorName);
  json["added"] = entry.added;
  json["sha256"] = entry.hash;
  return json;
}

Json JsonOf(const archive::ArchivedDocument& document) {
  auto json = JsonOf(ViewOf(document));
  json["archive"] = JsonOf(document.entry);
  return json;
}

Json JsonOf(const archive::Trend& trend) {
  Json json;
  json["asset"] = trend.asset;
  json["testId"] = trend.testId;
  json["simulated"] = trend.simulated;
  json["otherKind"] = trend.otherKind;
  json["notCurrent"] = trend.notCurrent;
  json["points"] = Json::array();
  for (const auto& point : trend.points) json["points"].push_back(JsonOf(point));
  return json;
}

report::DocumentView ViewOf(const archive::ArchivedDocument& document) {
  const auto& entry = document.entry;
  report::DocumentView view;
  view.path = entry.path;
  view.equipment = {entry.asset, entry.serial, entry.maker, entry.model};
  view.comment = entry.comment;
  view.instrument = document.instrument;
  view.judged.outcome = entry.outcome;
  view.judged.simulated = entry.simulated;
  view.judged.run = entry.run;
  view.judged.standards = StandardsOf(document);
  for (const auto& element : document.elements) view.judged.elements.push_back(element.result);
  return view;
}

}  // namespace host::cli
