#include <algorithm>
#include <filesystem>

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class ManualTest : public CliTest {
 protected:
  /// The commands that the help shows.
  Words Commands() const {
    Words commands;
    std::istringstream help(Bench({"--help"}).out);
    bool listed = false;
    for (std::string line; std::getline(help, line);) {
      if (line.starts_with("Subcommands:") || line.starts_with("Commands:")) {
        listed = true;
      } else if (listed && line.starts_with("  ") && line[2] != ' ') {
        commands.push_back(line.substr(2, line.find(' ', 2) - 2));
      } else if (listed && line.empty()) {
        break;
      }
    }
    return commands;
  }
};

TEST_F(ManualTest, Help_HasAnExampleOfEveryCommand) {
  const auto commands = Commands();
  EXPECT_GE(commands.size(), 9u);
  for (const auto& command : commands) {
    const auto help = Bench({command, "--help"});
    EXPECT_EQ(help.status, 0) << command;
    const auto examples = help.out.substr(std::min(help.out.find("Example"), help.out.size()));
    EXPECT_THAT(examples, HasSubstr("\n  orvik-bench " + command + " "))
        << command << " has no example of its own:\n"
        << help.out;
    for (std::size_t at = 0, end; at < help.out.size(); at = end + 1) {
      end = std::min(help.out.find('\n', at), help.out.size());
      EXPECT_LE(end - at, 130u) << command << ": " << help.out.substr(at, end - at);
    }
  }
}

TEST_F(ManualTest, Help_HasAnExampleOfEveryArchiveCommand) {
  ASSERT_EQ(Bench({"manual", Path("man")}).status, 0);
  const auto page = Contents(Path("man/orvik-bench-archive.1"));
  for (const std::string command : {"add", "list", "show", "export", "trend"}) {
    const auto help = Bench({"archive", command, "--help"}).out;
    const auto examples = help.substr(std::min(help.find("Example"), help.size()));
    EXPECT_THAT(examples, HasSubstr("\n  orvik-bench archive " + command + " ")) << help;
    EXPECT_THAT(page, HasSubstr("\n  orvik\\-bench archive " + command + " "));
  }
}

TEST_F(ManualTest, UnwritableOutput_EndsWithTwo) {
  for (const std::string asked : {"--help", "--version", "run --help", "tests"}) {
    const auto line = std::string(ORVIK_BENCH_PATH) + " " + asked + " > /dev/full";
    const auto told = support::RunShell(line);
    EXPECT_EQ(told.status, 2) << asked;
    EXPECT_THAT(told.error, HasSubstr("the standard output cannot be written")) << asked;
  }
}

TEST_F(ManualTest, Help_NamesTheOptionsOfEveryCommand) {
  const std::string ofAll =
      "\"orvik-bench --help\" explains: --state DIR, --catalogue FILE, --lang L, --wait SECONDS\n";
  for (const std::string command : {"run", "show", "standards"})
    EXPECT_THAT(Bench({command, "--help"}).out, HasSubstr(ofAll)) << command;
  EXPECT_THAT(Bench({"archive", "add", "--help"}).out, HasSubstr("explains: --archive FILE|URL\n"));
}

TEST_F(ManualTest, EveryCommand_HasAValidManualPage) {
  const auto made = Bench({"manual", Path("man")});
  ASSERT_EQ(made.status, 0) << made.error;
  auto commands = Commands();
  Words pages{Path("man/orvik-bench.1")};
  for (const auto& command : commands) pages.push_back(Path("man/orvik-bench-" + command + ".1"));
  for (const auto& page : pages) {
    const auto text = Contents(page);
    ASSERT_FALSE(text.empty()) << page;
    for (const auto* section : {".SH NAME", ".SH SYNOPSIS", ".SH OPTIONS", ".SH NOTES AND EXAMPLES"})
      EXPECT_THAT(text, HasSubstr(section)) << page;
  }
  Words lint{"-T", "lint", "-W", "warning"};
  lint.insert(lint.end(), pages.begin(), pages.end());
  const auto looked = support::Run("/usr/bin/mandoc", lint);
  std::istringstream findings(looked.out + looked.error);
  for (std::string finding; std::getline(findings, finding);) {
    // The pages bear no date, so that a build today and one tomorrow are the same.
    EXPECT_TRUE(finding.empty() || finding.find("missing date") != std::string::npos) << finding;
  }
}

TEST_F(ManualTest, Page_ShowsTheHelp) {
  ASSERT_EQ(Bench({"manual", Path("man")}).status, 0);
  const auto shown = support::Run("/usr/bin/mandoc", {"-T", "utf8", Path("man/orvik-bench-run.1")});
  std::string plain;  // bold and underlined letters are overstruck
  for (std::size_t i = 0; i < shown.out.size(); ++i) {
    if (i + 1 < shown.out.size() && shown.out[i + 1] == '\b')
      ++i;
    else
      plain += shown.out[i];
  }
  for (const auto* text :
       {"orvik-bench run FILE [OPTION]...", "--port DEVICE", "--operator auto|ask",
        "Divide every pause and time-out", "orvik-bench run pump-7.orvik --port /dev/ttyUSB0"})
    EXPECT_THAT(plain, HasSubstr(text));
}

class CompletionTest : public CliTest {
 protected:
  /// What bash offers for a command line whose last word is being typed.
  std::string Offered(const Words& words) {
    Write("complete.bash", Bench({"completion", "bash"}).out);
    std::string line = "source '" + Path("complete.bash") + "'\nCOMP_WORDS=(";
    for (const auto& word : words) line += " '" + word + "'";
    line += " )\nCOMP_CWORD=" + std::to_string(words.size() - 1) +
            "\n_orvik_bench\nprintf '%s\\n' \"${COMPREPLY[@]}\"\n";
    const auto completed = support::Run("/bin/bash", {"--norc", "-c", line});
    EXPECT_EQ(completed.error, "");
    return completed.out;
  }
};

TEST_F(CompletionTest, OffersCommandsOptionsAndTheirValues) {
  EXPECT_EQ(Offered({"orvik-bench", "sho"}), "show\n");
  EXPECT_EQ(Offered({"orvik-bench", "run", "a.orvik", "--resu"}), "--resume\n");
  EXPECT_EQ(Offered({"orvik-bench", "run", "a.orvik", "--stat"}), "--state\n");
  EXPECT_EQ(Offered({"orvik-bench", "run", "a.orvik", "--operator", "a"}), "auto\nask\n");
  EXPECT_EQ(Offered({"orvik-bench", "show", "--po"}), "\n");
  EXPECT_EQ(Offered({"orvik-bench", "man"}), "\n") << "a hidden command is offered";
}

TEST_F(CompletionTest, OffersFilesAndFolders) {
  Write("pump.orvik", "");
  std::filesystem::create_directory(Path("pumps"));
  EXPECT_EQ(Offered({"orvik-bench", "show", Path("pump.")}), Path("pump.orvik") + "\n");
  EXPECT_EQ(Offered({"orvik-bench", "show", "--state", Path("pump")}), Path("pumps") + "\n");
  EXPECT_EQ(Offered({"orvik-bench", "tests", "--catalogue", Path("pump.")}), Path("pump.orvik") + "\n");
}

TEST_F(CompletionTest, OffersDocumentsAndFolders) {
  for (const auto* name : {"pump.orvik", "pump.pdf", "pump.orvik.wire.log"}) Write(name, "");
  std::filesystem::create_directory(Path("pumps"));
  const auto both = Path("pump.orvik") + "\n" + Path("pumps") + "\n";
  EXPECT_EQ(Offered({"orvik-bench", "show", Path("pu")}), both);
  EXPECT_EQ(Offered({"orvik-bench", "archive", "add", Path("pu")}), both);
  EXPECT_EQ(Offered({"orvik-bench", "new", Path("next.orvik"), "--from", Path("pu")}), both);
}

TEST_F(CompletionTest, OffersTheElementsOfTheDocument) {
  const auto file = Path("my pump.orvik");
  ASSERT_EQ(Bench({"new", file, "--add", "400", "610"}).status, 0);
  const std::string bench = ORVIK_BENCH_PATH;
  EXPECT_EQ(Offered({bench, "run", file, "--element", ""}), "1\n2\n3\n4\n");
  EXPECT_EQ(Offered({bench, "limit", file, "--element", "1", ""}), "1\n2\n3\n4\n");
  EXPECT_EQ(Offered({bench, "move", file, "--element", "1", "--after", "4"}), "4\n");
  EXPECT_EQ(Offered({bench, "run", "--element", ""}), "\n");
  EXPECT_EQ(Offered({bench, "run", Path("none.orvik"), "--element", ""}), "\n");
  EXPECT_EQ(Bench({"element-numbers", file}).out,
            "1\tProtective earth resistance\n2\tProtective earth, with mains cord\n"
            "3\tProtective earth, without mains cord\n4\tEarth leakage, NC\n");
}

TEST_F(CompletionTest, ListsElementsWithTheirNames) {
  const auto file = NewDocument({"610"});
  setenv("COMP_TYPE", "63", 1);
  const auto listed = Offered({ORVIK_BENCH_PATH, "run", file, "--element", ""});
  unsetenv("COMP_TYPE");
  EXPECT_EQ(listed, "1  (Earth leakage, NC)\n");
}

TEST_F(CompletionTest, KeepsANameWithBlanksTogether) {
  Write("my pump.orvik", "");
  EXPECT_EQ(Offered({"orvik-bench", "show", Path("my")}), Path("my pump.orvik") + "\n");
}

TEST_F(CompletionTest, CompletesAValueAfterAnEqualsSign) {
  EXPECT_EQ(Offered({"orvik-bench", "run", "--operator", "="}), "auto\nask\n");
  EXPECT_EQ(Offered({"orvik-bench", "run", "--operator", "=", "as"}), "ask\n");
}

TEST_F(CompletionTest, OffersTheValuesOfAnArgument) {
  EXPECT_EQ(Offered({"orvik-bench", "completion", ""}), "bash\nzsh\nfish\n");
  EXPECT_EQ(Offered({"orvik-bench", "help", "arch"}), "archive\n");
  EXPECT_EQ(Offered({"orvik-bench", "config", "a.orvik", "--leads", "a"}), "all\n");
  EXPECT_EQ(Offered({"orvik-bench", "archive", "list", "--outcome", "f"}), "failed\n");
  EXPECT_EQ(Offered({"orvik-bench", "--lang", "d"}), "de\n");
  EXPECT_EQ(Offered({"orvik-bench", "run", "--simulate", "bro"}), "broken-earth\n");
  EXPECT_EQ(Offered({"orvik-bench", "standards", "iec-62353-class-2-b"}),
            "iec-62353-class-2-b\niec-62353-class-2-bf\n");
  EXPECT_EQ(Offered({"orvik-bench", "limit", "--from", "iec-62353-class-1-c"}), "iec-62353-class-1-cf\n");
}

TEST_F(CompletionTest, OffersOptionsOfTheCommandAbove) {
  EXPECT_EQ(Offered({"orvik-bench", "archive", "add", "--arc"}), "--archive\n");
  Write("a.sqlite", "");
  EXPECT_EQ(Offered({"orvik-bench", "archive", "add", "--archive", Path("a.s")}), Path("a.sqlite") + "\n");
}

// They are the search path and the settings of zsh: without a search path no command is found.
TEST_F(CompletionTest, AvoidsTheVariablesOfZsh) {
  const auto script = Bench({"completion", "zsh"}).out;
  for (const auto* name :
       {" path=", " path ", "$path", " options=", " options ", "$options", " words=", "$words"})
    EXPECT_THAT(script, Not(HasSubstr(name)));
}

TEST_F(CompletionTest, HasAScriptForEveryShell) {
  EXPECT_EQ(Bench({"completion", "zsh"}).status, 0);
  const auto fish = Bench({"completion", "fish"});
  EXPECT_EQ(fish.status, 0);
  EXPECT_THAT(fish.out, HasSubstr("-l operator -x -a 'auto ask'"));
  EXPECT_THAT(fish.out, HasSubstr("-l element -x -a '(__orvik_bench_elements)'"));
  EXPECT_THAT(fish.out, HasSubstr("-a '(__orvik_bench_documents)'"));
  EXPECT_THAT(fish.out, HasSubstr("-l help -d")) << "a flag takes no value";
  const auto unknown = Bench({"completion", "tcsh"});
  EXPECT_EQ(unknown.status, 3);
  EXPECT_THAT(unknown.error, HasSubstr("bash, zsh, fish"));
}

}  // namespace
}  // namespace cli
