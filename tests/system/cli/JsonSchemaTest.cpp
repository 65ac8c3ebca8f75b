#include <filesystem>

#include "tests/system/cli/CliTest.h"
#include "tests/system/cli/Schema.h"

namespace cli {
namespace {

/// The fields of a schema that nothing is said about.
void CollectMute(const nlohmann::json& node, const std::string& place, std::vector<std::string>& mute) {
  if (node.is_array()) {
    for (std::size_t i = 0; i < node.size(); ++i) CollectMute(node[i], place + "/" + std::to_string(i), mute);
  }
  if (!node.is_object()) return;
  if (const auto fields = node.find("properties"); fields != node.end()) {
    EXPECT_EQ(node.value("additionalProperties", true), false)
        << place << " takes fields that nobody told of";
    for (const auto& [name, field] : fields->items()) {
      if (!field.contains("description")) mute.push_back(place + "/" + name);
    }
  }
  for (const auto& [name, below] : node.items()) CollectMute(below, place + "/" + name, mute);
}

TEST(Schemas, DescribeEveryField) {
  std::size_t schemas = 0;
  for (const auto& file :
       std::filesystem::directory_iterator(std::string(SOURCE_PATH) + "/packaging/schemas")) {
    const auto name = file.path().filename().string();
    ASSERT_TRUE(name.ends_with(".schema.json")) << name;
    std::vector<std::string> mute;
    CollectMute(Schema(name.substr(0, name.size() - 12)).Text(), name, mute);
    EXPECT_EQ(mute, std::vector<std::string>());
    ++schemas;
  }
  EXPECT_GE(schemas, 11u);
}

TEST(Schemas, ArchiveAgreesWithDocument) {
  const auto document = Schema("document").Text()["properties"];
  auto shown = Schema("archive-show").Text()["properties"];
  shown.erase("archive");
  EXPECT_EQ(shown, document) << nlohmann::json::diff(document, shown).dump(1);
  const auto element = document["elements"]["items"]["properties"];
  const auto point = Schema("archive-trend").Text()["properties"]["points"]["items"]["properties"];
  for (const char* field : {"name", "run", "operator", "status", "statusText", "verdict", "judged",
                            "recordOnly", "limits", "failedStandards", "reasons", "doubts"})
    EXPECT_EQ(point[field], element[field]) << field;
}

class JsonSchemaTest : public CliTest {
 protected:
  static void Keeps(const std::string& schema, const std::string& output) {
    EXPECT_EQ(Schema(schema).Broken(nlohmann::json::parse(output)), "") << output;
  }
  static void LinesKeep(const std::string& schema, const std::string& output) {
    const Schema published(schema);
    std::istringstream lines(output);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count)
      EXPECT_EQ(published.Broken(nlohmann::json::parse(line)), "") << line;
    EXPECT_GT(count, 3u);
  }
};

TEST_F(JsonSchemaTest, Schema_RefusesUnknownFields) {
  const Schema document("document");
  EXPECT_NE(document.Broken(nlohmann::json::parse(R"({"document": "a"})")), "");
  EXPECT_NE(document.Broken(nlohmann::json::parse(
                R"({"document": "a", "outcome": "passed", "instrument": null, "elements": [], "more": 1})")),
            "");
}

TEST_F(JsonSchemaTest, Tests) { Keeps("tests", Bench({"tests", "--json"}).out); }

TEST_F(JsonSchemaTest, DocumentBeforeAndAfterItsRun) {
  const auto file = NewDocument({"400", "410"});
  Keeps("document", Bench({"show", file, "--json"}).out);
  SetLimit(file, "4", "100");
  Keeps("document", RunSound(file, {"--json"}).out);
  Keeps("document", Bench({"show", file, "--json"}).out);
  Keeps("runs", Bench({"show", file, "--runs", "--json"}).out);
  Keeps("run", Bench({"show", file, "--run", "1", "--json"}).out);
}

TEST_F(JsonSchemaTest, EventsOfARunWithADoubt) {
  Write("over", "based-on = sound-class-1\n410 = 0.001 Ohm overload\n");
  const auto file = NewDocument({"410", "210"});
  LinesKeep("events", Bench(Simulated(file, Path("over"), {"--events"})).out);
}

TEST_F(JsonSchemaTest, EventsOfALostTester) {
  const auto file = NewDocument({"410"});
  const auto link = Path("tester");
  support::Process tester(KELD_SIM_PATH, {"--link", link, "--time-scale", kTimeScale});
  ASSERT_TRUE(tester.AwaitOutput("ready"));
  const auto run = Start({"run", file, "--port", link, "--time-scale", kTimeScale, "--events"});
  ASSERT_TRUE(run->AwaitOutput("STST,410,0"));
  tester.Signal(SIGKILL);
  const auto ended = run->Wait();
  EXPECT_THAT(ended.out, HasSubstr("port-failed"));
  LinesKeep("events", ended.out);
}

TEST_F(JsonSchemaTest, Calibration) {
  Keeps("calibration", Bench({"calibrate", "--simulate", "--time-scale", kTimeScale, "--json"}).out);
  Keeps("calibration-list", Bench({"calibrate", "--list", "--json"}).out);
}

TEST_F(JsonSchemaTest, FindingsInADocument) {
  const auto file = NewDocument({"410"});
  Keeps("check", Bench({"check", file, "--json"}).out);
  auto text = Contents(file);
  text.replace(text.find("\"410\""), 5, "\"4711\"");
  Write("d.orvik", text);
  const auto checked = Bench({"check", file, "--json"});
  EXPECT_EQ(checked.status, 3);
  Keeps("check", checked.out);
  EXPECT_EQ(nlohmann::json::parse(checked.out)["wrong"], 1);
}

TEST_F(JsonSchemaTest, SetsOfLimits) {
  const auto sets = Bench({"standards", "--json"}).out;
  Keeps("standards", sets);
  const auto names = nlohmann::json::parse(sets)["standards"];
  ASSERT_FALSE(names.empty());
  for (const auto& each : names) Keeps("standard-set", Bench({"standards", each["set"], "--json"}).out);
}

TEST_F(JsonSchemaTest, TheArchive) {
  const auto file = Path("a.orvik");
  Done({"new", file, "--add", "410", "--asset", "PUMP-7"});
  Done({"limit", file, "--from", "iec-62353-class-1-bf"});
  ASSERT_EQ(RunSound(file).status, 0);
  Keeps("archive-add", Bench({"archive", "add", "--simulated", file, Path("none.orvik"), "--json"}).out);
  Keeps("archive-list", Bench({"archive", "list", "--json"}).out);
  Keeps("archive-show", Bench({"archive", "show", "1", "--json"}).out);
  const auto trend =
      Bench({"archive", "trend", "--asset", "PUMP-7", "--test", "410", "--simulated", "--json"}).out;
  Keeps("archive-trend", trend);
  EXPECT_EQ(nlohmann::json::parse(trend)["points"].size(), 1u);
}

}  // namespace
}  // namespace cli
