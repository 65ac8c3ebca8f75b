#include "tests/system/cli/CliTest.h"

namespace {

using testing::HasSubstr;
using testing::Not;

class RunInGerman : public cli::CliTest {
 protected:
  /// The object without its translated texts and without what differs from run to run.
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

TEST_F(RunInGerman, PrintsGermanOnly) {
  const auto file = NewDocument({"210", "410"});
  SetLimit(file, "2", "300");
  const auto run = Bench(Simulated(file, "broken-earth", {"--lang", "de"}));
  EXPECT_EQ(run.status, 1) << run.error;
  EXPECT_THAT(run.out, HasSubstr("Alle Pausen und Zeitgrenzen sind durch 10 geteilt."));
  EXPECT_THAT(run.out, HasSubstr("Versuch 1 von 3"));
  EXPECT_THAT(run.out, HasSubstr(": nicht bestanden\nSIMULIERT: ein simuliertes Prüfgerät wurde verwendet"));
  EXPECT_THAT(run.out, HasSubstr("Prüfgerät KELD(IN), Seriennummer SIM-0001, Firmware 3.10"));
  EXPECT_THAT(run.out, HasSubstr("1  nicht beurteilt 231.4 V"));
  EXPECT_THAT(run.out, HasSubstr("IEC 62353: 1850 mOhm überschreitet den Grenzwert von 300 mOhm"));
  for (const char* english : {"passed", "failed", "fails", "attempt", "Tester", "All pauses"})
    EXPECT_THAT(run.out, Not(HasSubstr(english)));
}

TEST_F(RunInGerman, WritesAGermanReport) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  EXPECT_EQ(Bench(Simulated(file, "broken-earth", {"--lang", "de"})).status, 1);
  Done({"report", file, "--to", Path("d.txt"), "--lang", "de"});
  const auto text = Contents(Path("d.txt"));
  EXPECT_THAT(text, HasSubstr("SIMULIERTE elektrische Sicherheitsprüfung"));
  EXPECT_THAT(text, HasSubstr("NICHT BESTANDEN"));
  EXPECT_THAT(text, HasSubstr("höchstens 300 mOhm"));
  for (const char* english : {"passed", "failed", "Result", "Tester", "at most"})
    EXPECT_THAT(text, Not(HasSubstr(english))) << " in\n";
}

TEST_F(RunInGerman, GivesTestsTheirGermanNames) {
  const auto file = Path("d.orvik");
  EXPECT_THAT(Done({"new", file, "--add", "410", "--lang", "de"}),
              HasSubstr("Schutzleiter, mit Netzleitung"));
  EXPECT_THAT(Bench({"tests", "--lang", "de"}).out, HasSubstr("Patientenableitstrom AC, NC"));
}

TEST_F(RunInGerman, KeepsTheJsonObject) {
  const auto file = NewDocument({"210", "410"});
  SetLimit(file, "2", "300");
  EXPECT_EQ(Bench(Simulated(file, "broken-earth", {"--lang", "de"})).status, 1);
  const auto german = Bench({"show", file, "--json", "--lang", "de"});
  const auto english = Bench({"show", file, "--json"});
  EXPECT_EQ(ForPrograms(german.out), ForPrograms(english.out));
  EXPECT_EQ(nlohmann::json::parse(german.out)["outcome"], "failed");
}

/// German units or numbers would make the limit unusable and the result wrong.
TEST_F(RunInGerman, JudgesAsInEnglish) {
  const auto file = Path("d.orvik");
  Done({"new", file, "--add", "410", "--lang", "de"});
  Done({"limit", file, "--element", "1", "--standard", "N", "--high", "300.5", "--lang", "de"});
  const auto words = Simulated(file, "broken-earth", {"--json"});
  const auto english = Bench(words);
  EXPECT_EQ(english.status, 1);
  const auto german = Bench(Join(words, {"--lang", "de"}));
  EXPECT_EQ(german.status, english.status);
  EXPECT_EQ(ForPrograms(german.out), ForPrograms(english.out));
}

TEST_F(RunInGerman, AcceptsTheSameOperatorInput) {
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
