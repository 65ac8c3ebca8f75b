#include <gmock/gmock.h>
#include <unistd.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/support/Process.h"
#include "tests/support/RecordedDocument.h"
#include "tests/system/archive/ArchiveTest.h"

namespace archive_tests {
namespace {

using support::Finished;
using testing::HasSubstr;
using testing::Not;
using Words = std::vector<std::string>;

std::string Contents(const std::string& path) {
  std::ifstream file(path);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

/// The real program, with its own state.
class WithProgram {
 protected:
  static std::unique_ptr<support::Process> Start(Words words) {
    return std::make_unique<support::Process>(ORVIK_BENCH_PATH, std::move(words));
  }

  /// Runs "archive" on an archive.
  Finished On(const std::string& location, const Words& more) const {
    Words words{"--state", (state_.Path() / "state").string(), "archive", "--archive", location};
    words.insert(words.end(), more.begin(), more.end());
    return Start(words)->Wait();
  }

  support::TemporaryFolder state_;
};

class ProgramTest : public ArchiveTest, protected WithProgram {
 protected:
  Finished Run(const Words& words) const { return On(location_, words); }

  nlohmann::json Json(Words words) const {
    words.push_back("--json");
    const auto ended = Run(words);
    EXPECT_EQ(ended.status, 0) << ended.error;
    return nlohmann::json::parse(ended.out);
  }

  /// A document with a finished test 410, judged by "IEC 62353" (at most 300 mOhm).
  /// @param ohms what the tester read
  std::string Document(const std::string& name, const std::string& asset, const std::string& ohms = "0.123",
                       const support::RunOf& run = {}) const {
    support::RecordedDocument document({}, name);
    document.Document().equipment.asset = asset;
    document.Add(410);
    document.Limit(1, "", "300");
    document.Reads(410, ohms + ",0,Ohm");
    document.Run(run);
    return Kept(document);
  }

  /// Copies the document's file into the test's folder; returns its path.
  std::string Kept(support::RecordedDocument& recorded) const {
    const auto file = Path(recorded.Document().Path().filename().string());
    std::filesystem::copy_file(recorded.Document().Path(), file,
                               std::filesystem::copy_options::overwrite_existing);
    return file;
  }

  /// Runs a command that must succeed.
  void Done(Words words) const {
    words.insert(words.begin(), {"--state", Path("state")});
    const auto ended = Start(std::move(words))->Wait();
    EXPECT_EQ(ended.status, 0) << ended.error;
  }
};

TEST_P(ProgramTest, AddsListsShowsAndExports) {
  const auto file = Document("a.orvik", "P-7");
  const auto added = Run({"add", file});
  EXPECT_EQ(added.status, 0) << added.error;
  EXPECT_THAT(added.out, HasSubstr("added as document 1\n"));
  EXPECT_EQ(Json({"list"})["documents"][0]["asset"], "P-7");
  const auto shown = Json({"show", "1"});
  EXPECT_EQ(shown["outcome"], "passed");
  EXPECT_EQ(shown["elements"][0]["measurement"]["value"], 123.0);
  EXPECT_EQ(shown["elements"][0]["limits"][0]["high"], 300.0);
  EXPECT_EQ(shown["archive"]["runDate"], "2026-11-21T13:03:22Z");
  EXPECT_EQ(shown["archive"]["operator"], "M. Holm");
  const auto exported = Run({"export", "1", "--to", Path("b.orvik")});
  EXPECT_EQ(exported.status, 0);
  EXPECT_EQ(exported.out, Path("b.orvik") + "\n");
  EXPECT_EQ(Contents(Path("b.orvik")), Contents(file));
  const auto again = Run({"export", "1", "--to", Path("b.orvik")});
  EXPECT_EQ(again.status, 3);
  EXPECT_THAT(again.error, HasSubstr("b.orvik"));
}

TEST_P(ProgramTest, ShowsADocumentAsWhenAdded) {
  support::RecordedDocument recorded;
  recorded.Document().comment = "after repair";
  recorded.Leads("S-9", 21, "2026-05-04T10:00:00+02:00");
  recorded.Answers("IREM", "irem,KELD(IN),S-9,3.10");
  for (const int test : {410, 420, 610, 1010, 400}) recorded.Add(test);
  recorded.Limit(1, "", "300");  // passed
  recorded.Limit(1, "0.1", "", "AAMI", "class I");
  recorded.Limit(2, "", "10");          // failed
  recorded.RecordOnly(3);               // recorded; the next is not judged
  recorded.Reads(1010, "-152,0,MOhm");  // negative: doubtful, were it judged
  recorded.Run();
  const auto file = Kept(recorded);
  Run({"add", file});
  for (const std::string language : {"en", "de"}) {
    const Words in{"--state", Path("state"), "--lang", language};
    const auto printed = [&](Words words) {
      words.insert(words.begin(), in.begin(), in.end());
      words.push_back("--json");
      const auto ended = Start(words)->Wait();
      EXPECT_EQ(ended.status, 0) << ended.error;
      return nlohmann::json::parse(ended.out);
    };
    auto archived = printed({"archive", "--archive", location_, "show", "1"});
    EXPECT_EQ(archived["archive"]["outcome"], "failed");
    archived.erase("archive");
    const auto shown = printed({"show", file});
    EXPECT_EQ(archived, shown) << nlohmann::json::diff(shown, archived).dump(1);
    EXPECT_EQ(archived["elements"].size(), 7U);
  }
}

TEST_P(ProgramTest, ReportsUnchangedAndRevision) {
  EXPECT_EQ(Json({"add", Document("a.orvik", "P-7")})["documents"][0]["result"], "added");
  EXPECT_EQ(Json({"add", Path("a.orvik")})["documents"][0]["result"], "unchanged");
  const auto changed = Json({"add", Document("a.orvik", "P-7", "0.124")});
  EXPECT_EQ(changed["documents"][0]["result"], "revision");
  EXPECT_EQ(changed["documents"][0]["revision"], 2);
}

TEST_P(ProgramTest, RefusesUnfinishedDocumentsOnly) {
  const auto open = Path("open.orvik");
  Done({"new", open, "--add", "410"});
  const auto refused = Run({"add", open, Document("a.orvik", "P-7"), Path("none.orvik")});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("open.orvik is not finished"));
  EXPECT_THAT(refused.error, HasSubstr("--incomplete"));
  EXPECT_THAT(refused.error, HasSubstr("none.orvik"));
  EXPECT_EQ(Json({"list"})["documents"].size(), 1U);
  EXPECT_EQ(Run({"add", open, "--incomplete"}).status, 0);
  const auto listed = Json({"list", "--outcome", "incomplete"});
  ASSERT_EQ(listed["documents"].size(), 1U);
  EXPECT_EQ(listed["documents"][0]["finished"], false);
}

TEST_P(ProgramTest, RefusesAnAbortedTest) {
  const auto file = Document("a.orvik", "P-7", "0.123", {.button = host::plugins::keld::guide::kAbort});
  const auto refused = Run({"add", file});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("is not finished"));
}

TEST_P(ProgramTest, AddsDoubtfulResults_NeverAsPassed) {
  EXPECT_EQ(Run({"add", Document("a.orvik", "P-7", "-0.1")}).status, 0);
  Document("b.orvik", "P-8");
  Done({"limit", Path("b.orvik"), "--element", "1", "--remove"});
  EXPECT_EQ(Run({"add", Path("b.orvik")}).status, 0);
  EXPECT_EQ(Json({"show", "1"})["elements"][0]["verdict"], "doubtful");
  EXPECT_EQ(Json({"show", "1"})["elements"][0]["statusText"], "passed");
  EXPECT_EQ(Json({"show", "2"})["elements"][0]["verdict"], "not judged");
  const auto listed = Json({"list"})["documents"];
  for (const auto& entry : listed) {
    EXPECT_EQ(entry["outcome"], "incomplete");
    EXPECT_EQ(entry["finished"], true);
  }
  EXPECT_EQ(listed.size(), 2U);
  const auto trend = Run({"trend", "--asset", "P-8", "--test", "410"});
  EXPECT_THAT(trend.out, HasSubstr("not judged"));
}

TEST_P(ProgramTest, LaterLimitFailsTheNextRevisionOnly) {
  const auto file = Document("a.orvik", "P-7");
  Run({"add", file});
  Done({"limit", file, "--element", "1", "--standard", "AAMI", "--high", "100"});
  EXPECT_EQ(Json({"add", file})["documents"][0]["outcome"], "failed");
  EXPECT_EQ(Json({"show", "1"})["outcome"], "passed");
  const auto second = Json({"show", "2"});
  EXPECT_EQ(second["outcome"], "failed");
  EXPECT_EQ(second["elements"][0]["failedStandards"], nlohmann::json({"AAMI"}));
  EXPECT_THAT(Run({"show", "1"}).out, HasSubstr("; shown as it was judged then\n"));
  // The same run, so one reading.
  const auto points = Json({"trend", "--asset", "P-7", "--test", "410"})["points"];
  ASSERT_EQ(points.size(), 1U);
  EXPECT_EQ(points[0]["verdict"], "failed");
  EXPECT_EQ(points[0]["document"], 2);
}

TEST_P(ProgramTest, AddsAndMarksSimulatedOnRequest) {
  const auto file = Document("a.orvik", "P-7", "0.123", {.simulated = true});
  const auto refused = Run({"add", file, "--incomplete"});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("a.orvik was not added: it was run on a simulated tester"));
  EXPECT_THAT(refused.error, HasSubstr("--simulated"));

  const auto mark = HasSubstr("(simulated: nothing was measured)\n");
  EXPECT_THAT(Run({"add", file, "--simulated"}).out, testing::AllOf(HasSubstr("added as document 1 "), mark));
  EXPECT_THAT(Run({"list"}).out, mark);
  EXPECT_THAT(Run({"show", "1"}).out, HasSubstr("SIMULATED"));
  EXPECT_THAT(Run({"export", "1", "--to", Path("b.orvik")}).out, mark);
  EXPECT_EQ(Json({"list"})["documents"][0]["simulated"], true);
  EXPECT_EQ(Json({"show", "1"})["simulated"], true);
  EXPECT_EQ(Json({"show", "1"})["archive"]["simulated"], true);
  EXPECT_EQ(Json({"add", file, "--simulated"})["documents"][0]["simulated"], true);
}

TEST_P(ProgramTest, TrendShowsSimulatedOnRequest) {
  Run({"add", Document("a.orvik", "P-7", "0.099", {.simulated = true}), "--simulated"});
  const Words asked{"trend", "--asset", "P-7", "--test", "410"};
  auto simulated = asked;
  simulated.push_back("--simulated");
  const auto none = Run(asked);
  EXPECT_EQ(none.status, 3);
  EXPECT_THAT(none.error, HasSubstr("Simulated readings left out (--simulated shows them): 1\n"));

  Run({"add", Document("b.orvik", "P-7")});
  const auto real = Run(asked);
  EXPECT_THAT(real.out, HasSubstr("123  mOhm"));
  EXPECT_THAT(real.out, Not(HasSubstr("99  mOhm")));
  EXPECT_THAT(real.out, HasSubstr("Simulated readings left out (--simulated shows them): 1\n"));
  EXPECT_THAT(real.out, Not(HasSubstr("SIMULATED")));
  EXPECT_EQ(Json(asked)["simulated"], false);
  EXPECT_EQ(Json(asked)["otherKind"], 1);

  auto drawn = simulated;
  drawn.insert(drawn.end(), {"--to", Path("t.svg")});
  const auto practice = Run(drawn);
  EXPECT_THAT(practice.out, HasSubstr("SIMULATED"));
  EXPECT_THAT(practice.out, HasSubstr("99  mOhm"));
  EXPECT_THAT(practice.out, Not(HasSubstr("123  mOhm")));
  EXPECT_THAT(practice.out, HasSubstr("Real readings left out: 1\n"));
  EXPECT_THAT(Contents(Path("t.svg")), HasSubstr("SIMULATED"));
  EXPECT_EQ(Json(simulated)["simulated"], true);
  EXPECT_EQ(Json(simulated)["points"].size(), 1U);
}

TEST_P(ProgramTest, IgnoresResultsOfOtherEquipment) {
  const auto file = Document("a.orvik", "P-7");
  Done({"edit", file, "--asset", "P-9"});
  const auto refused = Run({"add", file});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("1 of its 1 elements have no result"));

  EXPECT_EQ(Run({"add", file, "--incomplete"}).status, 0);
  const auto shown = Json({"show", "1"});
  EXPECT_EQ(shown["outcome"], "incomplete");
  EXPECT_EQ(shown["elements"][0]["verdict"], "not tested");
  EXPECT_EQ(shown["elements"][0]["reasons"][0]["code"], "other-equipment");
  EXPECT_THAT(Run({"show", "1"}).out, HasSubstr("the asset number was \"P-7\" and is \"P-9\""));
  const auto trend = Run({"trend", "--asset", "P-9", "--test", "410"});
  EXPECT_EQ(trend.status, 3);
  EXPECT_THAT(
      trend.error,
      HasSubstr("Results left out that did not count when they were added (\"archive show\" says why): 1"));
}

TEST_P(ProgramTest, IgnoresUnrecordedResults) {
  const auto file = Document("a.orvik", "P-7");
  auto text = Contents(file);
  const auto begin = text.find("<Runs"), end = text.find("</Runs>");
  text.erase(begin, end + 7 - begin);
  std::ofstream(file) << text;
  EXPECT_EQ(Run({"add", file}).status, 3);
  EXPECT_EQ(Run({"add", file, "--incomplete"}).status, 0);
  EXPECT_EQ(Json({"show", "1"})["elements"][0]["reasons"][0]["code"], "not-recorded");
}

TEST_P(ProgramTest, DrawsATrend) {
  Run({"add", Document("a.orvik", "P&<7> '%'")});
  const auto drawn = Run({"trend", "--asset", "P&<7> '%'", "--test", "410", "--to", Path("t.svg")});
  EXPECT_EQ(drawn.status, 0) << drawn.error;
  EXPECT_THAT(drawn.out, HasSubstr("123  mOhm"));
  EXPECT_THAT(drawn.out, HasSubstr("IEC 62353: at most 300 mOhm"));
  EXPECT_THAT(drawn.out, HasSubstr("as it was judged when its document was added"));
  EXPECT_THAT(Contents(Path("t.svg")), HasSubstr("P&amp;&lt;7&gt; &#39;%&#39;"));
  EXPECT_EQ(Json({"trend", "--asset", "P&<7> '%'", "--test", "410"})["points"][0]["value"], 123.0);
  EXPECT_EQ(Run({"trend", "--asset", "other", "--test", "410"}).status, 3);
}

TEST_P(ProgramTest, TwoProgramsAddAtOnce) {
  Words all[2];
  for (int i = 0; i < 20; ++i) {
    const auto name = "d" + std::to_string(i) + ".orvik";
    all[i % 2].push_back(Document(name, "P-" + std::to_string(i), "0." + std::to_string(100 + i)));
  }
  const auto shared = Document("both.orvik", "P-7");  // both add this one too
  std::unique_ptr<support::Process> programs[2];
  for (int i = 0; i < 2; ++i) {
    Words words{"--state", Path("state" + std::to_string(i)), "archive", "--archive", location_, "add"};
    words.insert(words.end(), all[i].begin(), all[i].end());
    words.push_back(shared);
    programs[i] = Start(words);
  }
  std::string output;
  for (auto& program : programs) {
    const auto ended = program->Wait();
    EXPECT_EQ(ended.status, 0) << ended.error;
    output += ended.out;
  }
  const auto listed = Json({"list"})["documents"];
  EXPECT_EQ(listed.size(), 21U);
  EXPECT_THAT(output, HasSubstr("in the archive already"));
  std::set<std::string> assets;
  for (const auto& entry : listed) assets.insert(entry["asset"]);
  EXPECT_EQ(assets.size(), 20U);
}

TEST_P(ProgramTest, BusyArchive_EndsWithFiveOrWaits) {
  const auto file = Document("a.orvik", "P-7");
  ASSERT_EQ(Run({"add", file}).status, 0);
  const auto database = Database();
  database->Begin(host::archive::Database::Use::kWrite);
  const auto next = Document("b.orvik", "P-8");
  const auto waiting =
      Start({"--state", Path("state"), "archive", "--archive", location_, "add", next, "--wait", "600"});
  const auto refused = Run({"add", next});
  EXPECT_EQ(refused.status, 5) << refused.error;
  EXPECT_THAT(refused.error, HasSubstr("is in use by another program"));
  ASSERT_TRUE(waiting->AwaitError("waiting, at most 600 s"));
  database->Rollback();
  EXPECT_EQ(waiting->Wait().status, 0);
  EXPECT_EQ(Json({"list"})["documents"].size(), 2U);
}

ON_BOTH_DATABASES(ProgramTest);

/// Errors, as the real program reports them.
class ErrorTest : public testing::Test, protected WithProgram {
 protected:
  std::string Path(const std::string& name) const { return (state_.Path() / name).string(); }
};

TEST_F(ErrorTest, RefusesWrongArguments) {
  const auto file = Path("a.sqlite");
  for (const auto& [words, named] : std::vector<std::pair<Words, std::string>>{
           {{"list", "--since", "soon"}, "--since soon"},
           {{"list", "--outcome", "good"}, "--outcome good"},
           {{"list", "--limit", "0"}, "--limit 0"},
           {{"trend", "--asset", "A", "--test", "1", "--to", "x.png"}, "x.png"},
           {{}, "add, list, show"}}) {
    const auto ended = On(file, words);
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.error, HasSubstr(named));
  }
}

TEST_F(ErrorTest, ListDoesNotCreateAFile) {
  const auto ended = On(Path("none.sqlite"), {"list"});
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.error, HasSubstr("none.sqlite"));
  EXPECT_FALSE(std::filesystem::exists(Path("none.sqlite")));
}

TEST_F(ErrorTest, OwnArchiveStartsEmpty) {
  const auto ended = Start({"--state", Path("s"), "archive", "list"})->Wait();
  EXPECT_EQ(ended.status, 0) << ended.error;
  EXPECT_THAT(ended.out, HasSubstr("archive.sqlite"));
}

TEST_F(ErrorTest, RefusesADamagedFileUnchanged) {
  const std::string noise =
      "This is no database, but a text that is long enough to be taken for one at first.";
  std::ofstream(Path("a.sqlite")) << noise;
  const auto ended = On(Path("a.sqlite"), {"list"});
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.error, HasSubstr("a.sqlite is not an archive, or is damaged"));
  EXPECT_EQ(Contents(Path("a.sqlite")), noise);
}

TEST_F(ErrorTest, RefusesADatabaseOfAnotherProgram) {
  host::archive::SqliteDatabase(Path("b.sqlite"), host::archive::SqliteDatabase::Missing::kCreate)
      .Run("CREATE TABLE mine (x)", {});
  const auto ended = On(Path("b.sqlite"), {"list"});
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.error, HasSubstr("b.sqlite is not an archive"));
}

TEST_F(ErrorTest, NamesAFolderThatCannotBeWritten) {
  // Even root cannot create files there.
  ASSERT_EQ(Start({"--state", Path("s"), "new", Path("a.orvik"), "--add", "410"})->Wait().status, 0);
  const auto ended = On("/proc/self/archive.sqlite", {"add", "--incomplete", Path("a.orvik")});
  EXPECT_EQ(ended.status, 2);
  EXPECT_THAT(ended.error, HasSubstr("/proc/self/archive.sqlite"));
}

TEST_F(ErrorTest, RefusesOtherUrlsWithoutQuotingThem) {
  const auto ended = On("mysql://u:geheim@h/db", {"list"});
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.error, Not(HasSubstr("geheim")));
}

TEST_F(ErrorTest, NamesAnUnreachableServer) {
  const auto ended = On("postgresql://u:geheim@/db?host=" + state_.Path().string(), {"list"});
  EXPECT_EQ(ended.status, 2);
  EXPECT_THAT(ended.error, HasSubstr("postgresql://u@/db?host="));
  EXPECT_THAT(ended.error, HasSubstr("check the URL"));
  EXPECT_THAT(ended.error, Not(HasSubstr("geheim")));
}

TEST_F(ErrorTest, ReportsWhatPostgreSqlRefuses) {
  auto& server = PostgreSqlServer::Get();
  const auto database = server.NewDatabase();
  const auto missing = On(server.UrlFor("bench", "nowhere"), {"list"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_THAT(missing.error, HasSubstr("nowhere"));
  const auto asked = On(server.UrlFor("keyed", database), {"list"});
  EXPECT_EQ(asked.status, 2);
  EXPECT_THAT(asked.error, HasSubstr("PGPASSWORD"));
  const auto wrong = On(server.UrlFor("keyed:verkehrt", database), {"list"});
  EXPECT_EQ(wrong.status, 2);
  EXPECT_THAT(wrong.error, HasSubstr("check the user, the password"));
  EXPECT_THAT(wrong.error, Not(HasSubstr("verkehrt")));
  // A user who may connect, but not write.
  const auto barred = On(server.UrlFor("keyed:Geheim%231", database), {"list"});
  EXPECT_EQ(barred.status, 2);
  EXPECT_THAT(barred.error, HasSubstr("refuses"));
}

}  // namespace
}  // namespace archive_tests
