#include <gmock/gmock.h>
#include <unistd.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/archive/ArchiveTest.h"
#include "tests/cli/BenchProgram.h"

namespace archive_tests {
namespace {

using cli::Finished;
using cli::RunningProgram;
using testing::HasSubstr;
using testing::Not;
using Words = std::vector<std::string>;

std::string Contents(const std::string& path) {
  std::ifstream file(path);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

/// The real program, with a state of its own.
class WithProgram {
 protected:
  static std::unique_ptr<RunningProgram> Start(Words words) {
    return std::make_unique<RunningProgram>(ORVIK_BENCH_PATH, std::move(words));
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

  /// A document that was run to its end: test 410 measured 123 mOhm and test 1010 152 MOhm.
  std::string Document(const std::string& name, const std::string& asset,
                       const std::string& value = "123") const {
    auto text = Contents(SOURCE_PATH "/tests/archive/finished.orvik");
    const auto replace = [&](const std::string& from, const std::string& to) {
      text.replace(text.find(from), from.size(), to);
    };
    replace("PUMP-7", asset);
    replace("<Value>123<", "<Value>" + value + "<");
    std::ofstream(Path(name)) << text;
    return Path(name);
  }
};

TEST_P(ProgramTest, AddsListsShowsAndGivesBackTheVeryBytes) {
  const auto file = Document("a.orvik", "P-7");
  const auto added = Run({"add", file});
  EXPECT_EQ(added.status, 0) << added.error;
  EXPECT_THAT(added.out, HasSubstr("added as document 1"));
  EXPECT_EQ(Json({"list"})["documents"][0]["asset"], "P-7");
  const auto shown = Json({"show", "1"});
  EXPECT_EQ(shown["outcome"], "passed");
  EXPECT_EQ(shown["elements"][0]["measurement"]["value"], 123.0);
  EXPECT_EQ(shown["elements"][0]["limits"][0]["high"], 300.0);
  EXPECT_EQ(shown["archive"]["runDate"], "2026-11-21T13:12:37Z");
  EXPECT_EQ(Run({"export", "1", "--to", Path("b.orvik")}).status, 0);
  EXPECT_EQ(Contents(Path("b.orvik")), Contents(file));
  const auto again = Run({"export", "1", "--to", Path("b.orvik")});
  EXPECT_EQ(again.status, 3);
  EXPECT_THAT(again.error, HasSubstr("b.orvik"));
}

TEST_P(ProgramTest, TellsWhatIsUnchangedAndWhatIsARevision) {
  EXPECT_EQ(Json({"add", Document("a.orvik", "P-7")})["documents"][0]["result"], "added");
  EXPECT_EQ(Json({"add", Path("a.orvik")})["documents"][0]["result"], "unchanged");
  const auto changed = Json({"add", Document("a.orvik", "P-7", "124")});
  EXPECT_EQ(changed["documents"][0]["result"], "revision");
  EXPECT_EQ(changed["documents"][0]["revision"], 2);
}

TEST_P(ProgramTest, RefusesAnUnfinishedDocumentButTakesTheOthers) {
  const auto open = Path("open.orvik");
  ASSERT_EQ(Start({"--state", Path("state"), "new", open, "--add", "410"})->Wait().status, 0);
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

TEST_P(ProgramTest, DrawsATrend) {
  Run({"add", Document("a.orvik", "P&amp;&lt;7&gt; '%'")});
  const auto drawn = Run({"trend", "--asset", "P&<7> '%'", "--test", "410", "--to", Path("t.svg")});
  EXPECT_EQ(drawn.status, 0) << drawn.error;
  EXPECT_THAT(drawn.out, HasSubstr("123  mOhm"));
  EXPECT_THAT(drawn.out, HasSubstr("IEC 62353: at most 300 mOhm"));
  EXPECT_THAT(Contents(Path("t.svg")), HasSubstr("P&amp;&lt;7&gt; &#39;%&#39;"));
  EXPECT_EQ(Json({"trend", "--asset", "P&<7> '%'", "--test", "410"})["points"][0]["value"], 123.0);
  EXPECT_EQ(Run({"trend", "--asset", "other", "--test", "410"}).status, 3);
}

TEST_P(ProgramTest, TwoProgramsAddAtOnceAndNothingIsLost) {
  Words all[2];
  for (int i = 0; i < 20; ++i) {
    const auto name = "d" + std::to_string(i) + ".orvik";
    all[i % 2].push_back(Document(name, "P-" + std::to_string(i), std::to_string(100 + i)));
  }
  const auto shared = Document("both.orvik", "P-7");  // both add this one too
  std::unique_ptr<RunningProgram> programs[2];
  for (int i = 0; i < 2; ++i) {
    Words words{"--state", Path("state" + std::to_string(i)), "archive", "--archive", location_, "add"};
    words.insert(words.end(), all[i].begin(), all[i].end());
    words.push_back(shared);
    programs[i] = Start(words);
  }
  std::string told;
  for (auto& program : programs) {
    const auto ended = program->Wait();
    EXPECT_EQ(ended.status, 0) << ended.error;
    told += ended.out;
  }
  const auto listed = Json({"list"})["documents"];
  EXPECT_EQ(listed.size(), 21U);
  EXPECT_THAT(told, HasSubstr("in the archive already"));
  std::set<std::string> assets;
  for (const auto& entry : listed) assets.insert(entry["asset"]);
  EXPECT_EQ(assets.size(), 20U);
}

TEST_P(ProgramTest, AnArchiveThatAnotherProgramWritesEndsWithFiveOrIsWaitedFor) {
  const auto file = Document("a.orvik", "P-7");
  ASSERT_EQ(Run({"add", file}).status, 0);
  const auto database = Database();
  database->Begin(bench::Database::Use::kWrite);
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

/// What goes wrong, in the words of the real program.
class ErrorTest : public testing::Test, protected WithProgram {
 protected:
  std::string Path(const std::string& name) const { return (state_.Path() / name).string(); }
};

TEST_F(ErrorTest, WrongWordsAreTold) {
  const auto file = Path("a.sqlite");
  for (const auto& [words, told] : std::vector<std::pair<Words, std::string>>{
           {{"list", "--since", "soon"}, "--since soon"},
           {{"list", "--outcome", "good"}, "--outcome good"},
           {{"list", "--limit", "0"}, "--limit 0"},
           {{"trend", "--asset", "A", "--test", "1", "--to", "x.png"}, "x.png"},
           {{}, "add, list, show"}}) {
    const auto ended = On(file, words);
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.error, HasSubstr(told));
  }
}

TEST_F(ErrorTest, AFileThatIsNotThereIsNotMadeByAsking) {
  const auto ended = On(Path("none.sqlite"), {"list"});
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.error, HasSubstr("none.sqlite"));
  EXPECT_FALSE(std::filesystem::exists(Path("none.sqlite")));
}

TEST_F(ErrorTest, TheOwnArchiveIsEmptyAtFirst) {
  const auto ended = Start({"--state", Path("s"), "archive", "list"})->Wait();
  EXPECT_EQ(ended.status, 0) << ended.error;
  EXPECT_THAT(ended.out, HasSubstr("archive.sqlite"));
}

TEST_F(ErrorTest, ADamagedFileIsRefusedAndLeftAsItIs) {
  const std::string noise =
      "This is no database, but a text that is long enough to be taken for one at first.";
  std::ofstream(Path("a.sqlite")) << noise;
  const auto ended = On(Path("a.sqlite"), {"list"});
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.error, HasSubstr("a.sqlite is no archive, or is damaged"));
  EXPECT_EQ(Contents(Path("a.sqlite")), noise);
}

TEST_F(ErrorTest, ADatabaseOfSomethingElseIsRefused) {
  bench::SqliteDatabase(Path("b.sqlite"), bench::SqliteDatabase::Missing::kCreate)
      .Run("CREATE TABLE mine (x)", {});
  const auto ended = On(Path("b.sqlite"), {"list"});
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.error, HasSubstr("something else"));
}

TEST_F(ErrorTest, AFolderThatTakesNoFilesIsTold) {
  // Not even root makes files there.
  const auto ended = On("/proc/self/archive.sqlite", {"add", SOURCE_PATH "/tests/archive/finished.orvik"});
  EXPECT_EQ(ended.status, 2);
  EXPECT_THAT(ended.error, HasSubstr("/proc/self/archive.sqlite"));
}

TEST_F(ErrorTest, OtherUrlsAreRefusedWithoutBeingTold) {
  const auto ended = On("mysql://u:geheim@h/db", {"list"});
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.error, Not(HasSubstr("geheim")));
}

TEST_F(ErrorTest, AServerThatIsNotThereIsTold) {
  const auto ended = On("postgresql://u:geheim@/db?host=" + state_.Path().string(), {"list"});
  EXPECT_EQ(ended.status, 2);
  EXPECT_THAT(ended.error, HasSubstr("postgresql://u@/db?host="));
  EXPECT_THAT(ended.error, HasSubstr("check the URL"));
  EXPECT_THAT(ended.error, Not(HasSubstr("geheim")));
}

TEST_F(ErrorTest, WhatPostgreSqlRefusesIsTold) {
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
