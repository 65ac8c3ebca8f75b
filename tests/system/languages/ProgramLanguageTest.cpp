#include <algorithm>
#include <cstdlib>

#include "host/base/TextCells.h"
#include "tests/system/cli/CliTest.h"
#include "tests/system/languages/Languages.h"

namespace {

using testing::HasSubstr;

/// How the help begins in each language.
constexpr char kEnglish[] = "Usage: ";
constexpr char kGerman[] = "Aufruf: ";
constexpr char kSpanish[] = "Uso: ";

class ProgramLanguage : public cli::CliTest {
 protected:
  ProgramLanguage() {
    for (const char* name : {"ORVIK_LANG", "LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"}) unsetenv(name);
  }
  ~ProgramLanguage() override {
    for (const char* name : {"ORVIK_LANG", "LC_MESSAGES", "LANG"}) unsetenv(name);
    setenv("LC_ALL", "C", 1);
  }

  void Set(const char* name, const char* value) { setenv(name, value, 1); }
  bool HelpHolds(const std::string& text, const Words& arguments = {"--help"}) const {
    return Done(arguments).find(text) != std::string::npos;
  }
};

TEST_F(ProgramLanguage, IsEnglishByDefault) { EXPECT_TRUE(HelpHolds(kEnglish)); }

TEST_F(ProgramLanguage, FollowsTheOption_AtAnyPlace) {
  EXPECT_TRUE(HelpHolds(kGerman, {"--lang", "de", "--help"}));
  EXPECT_TRUE(HelpHolds(kGerman, {"--help", "--lang=de"}));
  EXPECT_TRUE(HelpHolds(kGerman, {"run", "--help", "--lang", "de"}));
}

TEST_F(ProgramLanguage, OptionOverridesTheEnvironment) {
  Set("ORVIK_LANG", "es");
  EXPECT_TRUE(HelpHolds(kGerman, {"--lang", "de", "--help"}));
  EXPECT_TRUE(HelpHolds(kEnglish, {"--lang", "en", "--help"}));
  EXPECT_TRUE(HelpHolds(kEnglish, {"--lang", "C", "--help"}));
}

TEST_F(ProgramLanguage, FollowsTheFirstVariableThatIsSet) {
  Set("LANG", "de_DE.UTF-8");
  EXPECT_TRUE(HelpHolds(kGerman));
  Set("LC_MESSAGES", "C");
  EXPECT_TRUE(HelpHolds(kEnglish));
  Set("LC_ALL", "es_ES.UTF-8@euro");
  EXPECT_TRUE(HelpHolds(kSpanish));
  Set("ORVIK_LANG", "de_AT");
  EXPECT_TRUE(HelpHolds(kGerman));
  Set("ORVIK_LANG", "");
  EXPECT_TRUE(HelpHolds(kSpanish)) << "an empty variable counts as unset";
}

TEST_F(ProgramLanguage, UnknownEnvironment_IsEnglishSilently) {
  for (const char* language :
       {"POSIX", "C.UTF-8", "xx_XX.UTF-8", "../../etc/passwd", "de/../es", ".", "%s"}) {
    Set("LC_ALL", language);
    const auto shown = Bench({"--help"});
    EXPECT_EQ(shown.status, 0) << language;
    EXPECT_EQ(shown.error, "") << language;
    EXPECT_THAT(shown.out, HasSubstr(kEnglish)) << language;
  }
}

TEST_F(ProgramLanguage, UnknownOption_NamesTheLanguages) {
  for (const std::string language : {"xx", "../de", "", "de/"}) {
    const auto shown = Bench({"--lang", language, "--help"});
    EXPECT_EQ(shown.status, 3) << language;
    EXPECT_EQ(shown.out, "") << language;
    EXPECT_THAT(shown.error, HasSubstr("de, en, es, fr, zh"));
  }
}

TEST_F(ProgramLanguage, Refusal_IsInTheLanguageOfTheEnvironment) {
  Set("LANG", "de_DE.UTF-8");
  EXPECT_THAT(Bench({"--lang", "xx", "tests"}).error, HasSubstr("keine Übersetzungen"));
}

/// A wrong command line, and a part of the message in English and in German. The sentences of the parser
/// itself stay English.
struct Mistake {
  std::string name;
  std::vector<std::string> words;
  std::string english, german;
};

class MistakeInGerman : public ProgramLanguage, public testing::WithParamInterface<Mistake> {};

TEST_P(MistakeInGerman, IsReportedInGerman) {
  auto words = GetParam().words;
  const auto english = Bench(words);
  EXPECT_EQ(english.status, 3);
  EXPECT_THAT(english.error, HasSubstr(GetParam().english));
  Set("ORVIK_LANG", "de");
  const auto german = Bench(words);
  EXPECT_EQ(german.status, 3);
  EXPECT_THAT(german.error, HasSubstr(GetParam().german));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, MistakeInGerman,
    testing::Values(
        Mistake{"NoCommand", {}, "a command is missing", "ein Befehl fehlt"},
        Mistake{"UnknownOption", {"--nosuch"}, "unknown option --nosuch", "unbekannte Option --nosuch"},
        Mistake{"UnknownCommand", {"frob", "x"}, "unknown command \"frob\"", "unbekannter Befehl"},
        Mistake{"RequiredOption", {"report", "x.orvik"}, "--to is required", "--to is required"},
        Mistake{"RequiredWord", {"run"}, "FILE is required", "FILE is required"},
        Mistake{"NoNumber",
                {"new", "x", "--add", "y"},
                "--add y: give a whole number",
                "--add y: geben Sie eine ganze Zahl"},
        Mistake{"NumbersInAList",
                {"new", "x", "--add", "410,910"},
                "--add 410,910: give the numbers one by one: --add 410 910",
                "--add 410,910: geben Sie die Zahlen einzeln an: --add 410 910"},
        Mistake{"NoValue", {"run", "x", "--element"}, "--element: 1 required", "--element: 1 required"},
        Mistake{"Excluded", {"run", "x", "--json", "--events"}, " excludes ", " excludes "},
        Mistake{
            "NoFile", {"show", "nosuch.orvik"}, "cannot be opened: No such file", "nicht geöffnet werden"}),
    [](const auto& given) { return given.param.name; });

/// The commands in a help text.
std::vector<std::string> CommandsOf(const std::string& help, const std::string& heading) {
  std::vector<std::string> commands;
  auto at = help.find("\n" + heading + ":\n");
  if (at == std::string::npos) return commands;
  std::istringstream lines(help.substr(at + heading.size() + 3));
  for (std::string line; std::getline(lines, line) && line.starts_with("  ");) {
    // A description that does not fit beside the name is on its own line.
    if (line[2] != ' ') commands.push_back(line.substr(2, line.find(' ', 2) - 2));
  }
  return commands;
}

/// Whether the line has only an option with its values: "  --outcome passed|failed".
bool NamesWordsAlone(const std::string& line) {
  return line.starts_with("  --") && line.find('|') != std::string::npos && line.find("  ", 2) == line.npos;
}

/// The translatable lines of a help text: not command lines, nor the values of an option.
std::vector<std::string> TextsOf(const std::string& help) {
  std::vector<std::string> texts;
  std::istringstream lines(help);
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && line.find("orvik-bench ") == std::string::npos && !NamesWordsAlone(line))
      texts.push_back(line);
  }
  return texts;
}

class HelpIn : public ProgramLanguage, public testing::WithParamInterface<std::string> {
 protected:
  /// Checks the help of the command and of its subcommands.
  void Look(Words command) {
    auto words = command;
    words.emplace_back("--help");
    const auto english = Bench(words);
    words.insert(words.end(), {"--lang", GetParam()});
    const auto shown = Bench(words);
    EXPECT_EQ(shown.status, 0) << shown.error;
    EXPECT_EQ(shown.error, "");
    const auto texts = TextsOf(shown.out);
    const auto englishTexts = TextsOf(english.out);
    EXPECT_GT(texts.size(), 4U);
    for (const auto& text : texts)
      EXPECT_EQ(std::count(englishTexts.begin(), englishTexts.end(), text), 0) << "in English: " << text;
    for (const auto& below : CommandsOf(english.out, "Subcommands")) {
      auto deeper = command;
      deeper.push_back(below);
      Look(deeper);
      ++looked_;
    }
  }
  int looked_ = 0;
};

TEST_P(HelpIn, TranslatesEveryCommand) {
  Look({});
  EXPECT_GT(looked_, 8);
}

TEST_P(HelpIn, KeepsItsColumns) {
  std::string description;
  for (const auto& entry :
       languages::EntriesOf(languages::Folder() / ("orvik-bench." + GetParam() + ".po"))) {
    if (entry.english == "The document") description = entry.translated;
  }
  ASSERT_NE(description, "");
  std::istringstream lines(Bench({"run", "--help", "--lang", GetParam()}).out);
  std::string line;
  while (std::getline(lines, line) && !line.starts_with("  FILE ")) continue;
  const auto at = line.rfind(description);
  ASSERT_NE(at, std::string::npos) << line;
  // The label before it is translated, perhaps in wide letters.
  EXPECT_EQ(host::CellsOf(line.substr(0, at)), 30U) << line;
}

INSTANTIATE_TEST_SUITE_P(All, HelpIn, testing::ValuesIn(languages::kAll),
                         [](const auto& given) { return given.param; });

}  // namespace
