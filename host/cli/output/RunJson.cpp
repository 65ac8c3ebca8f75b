#include "host/cli/output/RunJson.h"

#include <nlohmann/json.hpp>

#include "host/base/Text.h"
#include "host/cli/output/DocumentJson.h"
#include "host/report/RunOutcome.h"

namespace host::cli {

namespace {

using Json = nlohmann::ordered_json;

Json HeadOf(const document::RunRecord& run) {
  const auto count = report::CountOf(run);
  auto testers = Json::array();
  for (const auto& tester : run.testers) testers.push_back(cli::JsonOf(tester));
  return {{"run", run.number},
          {"begun", run.begun},
          {"ended", run.ended},
          {"end", document::EndText(run.end)},
          {"operator", run.by},
          {"simulated", run.simulated},
          {"timeScale", run.timeScale},
          {"port", run.port},
          {"program", run.program},
          {"intact", run.intact},
          {"gapAfter", run.gapAfter},
          {"equipment", cli::JsonOf(run.equipment)},
          {"testers", std::move(testers)},
          {"elements", run.Elements()},
          {"finished", count.finished}};
}

Json JsonOf(const document::RecordedLimit& limit) {
  return {{"standard", limit.standard}, {"description", limit.description},
          {"unit", limit.unit},         {"low", limit.low},
          {"high", limit.high},         {"status", limit.status}};
}

Json RecordedOf(const document::RecordedTest& test) {
  if (!test.recorded) return nullptr;
  return {{"value", NumberOrNull(FiniteNumber(test.recorded->value))},
          {"unit", test.recorded->unit},
          {"flags", test.recorded->flags}};
}

Json JsonOf(const document::RecordedTest& test) {
  auto judged = Json::array();
  for (const auto& limit : test.judged) judged.push_back(JsonOf(limit));
  return {{"element", test.element},
          {"testId", test.testId},
          {"settings", test.settings},
          {"at", test.at},
          {"status", test.status},
          {"by", test.by == document::RecordedTest::By::kTester ? "tester" : "operator"},
          {"tester", test.tester},
          {"said", test.said},
          {"recorded", RecordedOf(test)},
          {"judged", std::move(judged)},
          {"doubts", cli::JsonOf(test.doubts)}};
}

}  // namespace

Json JsonOf(const document::RunRecord& run) {
  auto json = HeadOf(run);
  json["tests"] = Json::array();
  for (const auto& step : run.steps)
    if (const auto* test = std::get_if<document::RecordedTest>(&step)) json["tests"].push_back(JsonOf(*test));
  return json;
}

Json JsonOf(const std::vector<document::RunRecord>& runs, const std::string& path) {
  auto heads = Json::array();
  for (const auto& run : runs) heads.push_back(HeadOf(run));
  return {{"document", path}, {"runs", std::move(heads)}};
}

}  // namespace host::cli
