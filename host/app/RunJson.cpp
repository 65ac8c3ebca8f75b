#include "host/app/RunJson.h"

#include "host/app/DocumentJson.h"
#include "host/app/RunOutcome.h"
#include "host/services/Text.h"

namespace bench {

namespace {

using Json = nlohmann::ordered_json;

Json HeadOf(const RunRecord& run) {
  const auto count = CountOf(run);
  Json json;
  json["run"] = run.number;
  json["begun"] = run.begun;
  json["ended"] = run.ended;
  json["end"] = EndText(run.end);
  json["operator"] = run.by;
  json["simulated"] = run.simulated;
  json["timeScale"] = run.timeScale;
  json["port"] = run.port;
  json["program"] = run.program;
  json["intact"] = run.intact;
  json["gapAfter"] = run.gapAfter;
  json["equipment"] = JsonOf(run.equipment);
  json["testers"] = Json::array();
  for (const auto& tester : run.testers) json["testers"].push_back(JsonOf(tester));
  json["elements"] = run.Elements();
  json["finished"] = count.finished;
  return json;
}

Json JsonOf(const RecordedLimit& limit) {
  Json json;
  json["standard"] = limit.standard;
  json["description"] = limit.description;
  json["unit"] = limit.unit;
  json["low"] = limit.low;
  json["high"] = limit.high;
  json["status"] = limit.status;
  return json;
}

Json JsonOf(const RecordedTest& test) {
  Json json;
  json["element"] = test.element;
  json["testId"] = test.testId;
  json["settings"] = test.settings;
  json["at"] = test.at;
  json["status"] = test.status;
  json["by"] = test.by == RecordedTest::By::kTester ? "tester" : "operator";
  json["tester"] = test.tester;
  json["said"] = test.said;
  json["recorded"] = nullptr;
  if (test.recorded) {
    const auto value = FiniteNumber(test.recorded->value);
    json["recorded"] = Json{{"value", value ? Json(*value) : Json(nullptr)},
                            {"unit", test.recorded->unit},
                            {"flags", test.recorded->flags}};
  }
  json["judged"] = Json::array();
  for (const auto& limit : test.judged) json["judged"].push_back(JsonOf(limit));
  json["doubts"] = JsonOf(test.doubts);
  return json;
}

}  // namespace

Json JsonOf(const RunRecord& run) {
  auto json = HeadOf(run);
  json["tests"] = Json::array();
  for (const auto& step : run.steps)
    if (const auto* test = std::get_if<RecordedTest>(&step)) json["tests"].push_back(JsonOf(*test));
  return json;
}

Json JsonOf(const std::vector<RunRecord>& runs, const std::string& path) {
  Json json;
  json["document"] = path;
  json["runs"] = Json::array();
  for (const auto& run : runs) json["runs"].push_back(HeadOf(run));
  return json;
}

}  // namespace bench
