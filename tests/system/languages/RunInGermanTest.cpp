#include "tests/system/cli/CliTest.h"

namespace {

class RunInGerman : public cli::CliTest {
 protected:
  static bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }

  /// The object without its sentences for people, and without what differs from run to run.
  static nlohmann::json ForPrograms(const std::string& text) {
    auto object = nlohmann::json::parse(text);
    object.erase("run");
    for (auto& element : object["elements"]) {
      element.erase("run");
      element.erase("at");
      for (auto& reason : element["reasons"]) EXPECT_EQ(reason.erase("text"), 1U);
    }
    return object;
  }
};

TEST_F(RunInGerman, TellsEverythingInGerman) {
  const auto file = NewDocument({"210", "410"});
  SetLimit(file, "2", "300");
  const auto run = Bench(Simulated(file, "broken-earth", {"--lang", "de"}));
  EXPECT_EQ(run.status, 1) << run.error;
  EXPECT_TRUE(Holds(run.out, "Alle Pausen und Zeitgrenzen sind durch 10 geteilt.")) << run.out;
  EXPECT_TRUE(Holds(run.out, "Versuch 1 von 3"));
  EXPECT_TRUE(Holds(run.out, ": nicht bestanden\nSIMULIERT: ein simuliertes Prüfgerät wurde verwendet"));
  EXPECT_TRUE(Holds(run.out, "Prüfgerät KELD(IN), Seriennummer SIM-0001, Firmware 3.10"));
  EXPECT_TRUE(Holds(run.out, "1  nicht beurteilt 231.4 V"));
  EXPECT_TRUE(Holds(run.out, "IEC 62353: 1850 mOhm überschreitet den Grenzwert von 300 mOhm"));
  for (const char* english : {"passed", "failed", "fails", "attempt", "Tester", "All pauses"})
    EXPECT_FALSE(Holds(run.out, english)) << english;
}

TEST_F(RunInGerman, WritesTheReportInGerman) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  EXPECT_EQ(Bench(Simulated(file, "broken-earth", {"--lang", "de"})).status, 1);
  const auto report = Path("d.txt");
  const auto written = Bench({"report", file, "--to", report, "--lang", "de"});
  ASSERT_EQ(written.status, 0) << written.error;
  const auto text = Contents(report);
  EXPECT_TRUE(Holds(text, "SIMULIERTE elektrische Sicherheitsprüfung")) << text;
  EXPECT_TRUE(Holds(text, "NICHT BESTANDEN"));
  EXPECT_TRUE(Holds(text, "höchstens 300 mOhm"));
  for (const char* english : {"passed", "failed", "Result", "Tester", "at most"})
    EXPECT_FALSE(Holds(text, english)) << english << " in\n" << text;
}

TEST_F(RunInGerman, GivesTestsTheirGermanNames) {
  const auto file = Path("d.orvik");
  const auto made = Bench({"new", file, "--add", "410", "--lang", "de"});
  EXPECT_EQ(made.status, 0) << made.error;
  EXPECT_TRUE(Holds(made.out, "Schutzleiter, mit Netzleitung")) << made.out;
  EXPECT_TRUE(Holds(Bench({"tests", "--lang", "de"}).out, "Patientenableitstrom AC, NC"));
}

TEST_F(RunInGerman, LeavesTheJsonObjectAsItIs) {
  const auto file = NewDocument({"210", "410"});
  SetLimit(file, "2", "300");
  EXPECT_EQ(Bench(Simulated(file, "broken-earth", {"--lang", "de"})).status, 1);
  const auto german = Bench({"show", file, "--json", "--lang", "de"});
  const auto english = Bench({"show", file, "--json"});
  EXPECT_EQ(ForPrograms(german.out), ForPrograms(english.out));
  EXPECT_EQ(nlohmann::json::parse(german.out)["outcome"], "failed");
}

/// What German units or numbers would do: a limit that no longer fits, and a wrong result.
TEST_F(RunInGerman, JudgesAsInEnglish) {
  const auto file = Path("d.orvik");
  EXPECT_EQ(Bench({"new", file, "--add", "410", "--lang", "de"}).status, 0);
  const Words limit{"limit", file, "--element", "1", "--standard", "N", "--high", "300.5", "--lang", "de"};
  EXPECT_EQ(Bench(limit).status, 0);
  const auto words = Simulated(file, "broken-earth", {"--json"});
  const auto english = Bench(words);
  EXPECT_EQ(english.status, 1);
  auto inGerman = words;
  inGerman.insert(inGerman.end(), {"--lang", "de"});
  const auto told = Bench(inGerman);
  EXPECT_EQ(told.status, english.status);
  EXPECT_EQ(ForPrograms(told.out), ForPrograms(english.out));
}

TEST_F(RunInGerman, TakesTheSameWordsFromTheOperator) {
  const auto file = NewDocument({"210"});
  SetWideLimits(file, {"1"});
  const auto program = Start(Simulated(file, "sound-class-1", {"--operator", "ask", "--lang", "de"}));
  ASSERT_TRUE(program->AwaitOutput("PRÜFABLAUF"));
  program->Type("play\n");
  ASSERT_TRUE(program->AwaitOutput("PRÜFABLAUF", 2))
      << "offered again when the run is over: " << program->Output();
  program->Type("next\n");
  EXPECT_EQ(program->Wait().status, 0);
}

}  // namespace
