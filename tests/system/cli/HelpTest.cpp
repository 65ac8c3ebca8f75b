#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class HelpTest : public CliTest {};

TEST_F(HelpTest, HelpCommand_PrintsTheHelpOfACommand) {
  for (const Words& words :
       {Words{}, Words{"run"}, Words{"archive"}, Words{"archive", "list"}, Words{"help"}}) {
    auto asked = words, option = words;
    asked.insert(asked.begin(), "help");
    option.push_back("--help");
    const auto help = Bench(asked);
    EXPECT_EQ(help.status, 0) << help.error;
    EXPECT_EQ(help.out, Bench(option).out);
  }
}

TEST_F(HelpTest, HelpCommand_RefusesAnUnknownCommand) {
  const auto refused = Bench({"help", "archive", "lsit"});
  EXPECT_EQ(refused.status, 3);
  EXPECT_EQ(refused.error, "orvik-bench: unknown command \"lsit\": did you mean \"list\"?\n");
}

TEST_F(HelpTest, Version_HasAShortOption) {
  EXPECT_EQ(Bench({"-V"}).out, Bench({"--version"}).out);
  Done({"-V"});
}

struct Mistyped {
  const char* name;
  std::vector<std::string> words;
  const char* message;
};

class MistypedTest : public HelpTest, public testing::WithParamInterface<Mistyped> {};

TEST_P(MistypedTest, IsRefused_SuggestsTheNearest) {
  const auto refused = Bench(GetParam().words);
  EXPECT_EQ(refused.status, 3);
  EXPECT_EQ(refused.out, "");
  EXPECT_EQ(refused.error, "orvik-bench: " + std::string(GetParam().message) + " shows the options\n");
}

INSTANTIATE_TEST_SUITE_P(
    Table, MistypedTest,
    testing::Values(
        Mistyped{"Command",
                 {"rnu", "d.orvik", "--simulate"},
                 R"(unknown command "rnu": did you mean "run"? "orvik-bench --help")"},
        Mistyped{"CommandBelow",
                 {"archive", "lst"},
                 R"(unknown command "lst": did you mean "list"? "orvik-bench archive --help")"},
        Mistyped{"Option",
                 {"run", "d.orvik", "--simulat"},
                 R"(unknown option --simulat: did you mean --simulate? "orvik-bench run --help")"},
        Mistyped{"OptionWithAValue",
                 {"run", "d.orvik", "--elemnt=3"},
                 R"(unknown option --elemnt: did you mean --element? "orvik-bench run --help")"},
        Mistyped{"RequiredOption",
                 {"report", "d.orvik", "--too", "x.html"},
                 R"(unknown option --too: did you mean --to? "orvik-bench report --help")"},
        Mistyped{"OptionOfEveryCommand",
                 {"tests", "--catalog", "x.xml"},
                 R"(unknown option --catalog: did you mean --catalogue? "orvik-bench tests --help")"},
        Mistyped{"NothingNear", {"fly"}, R"(unknown command "fly"; "orvik-bench --help")"},
        Mistyped{"OneTooMany",
                 {"tests", "more"},
                 R"(The following argument was not expected: more; "orvik-bench tests --help")"}),
    kNamed);

}  // namespace
}  // namespace cli
