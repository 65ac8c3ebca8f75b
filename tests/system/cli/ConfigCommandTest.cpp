#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class ConfigCommandTest : public CliTest {
 protected:
  /// What `config` prints for the first element.
  std::string Config(const std::string& file, const Words& more = {}) const {
    return Done(Join({"config", file, "--element", "1"}, more));
  }
};

TEST_F(ConfigCommandTest, SelectsLeadsByName) {
  const auto file = NewDocument({"910"});
  EXPECT_EQ(Config(file), "element 1: options 4099 (leads: all; buttons: not applicable, skip)\n");
  EXPECT_EQ(Config(file, {"--leads", "3"}),
            "element 1: options 19 (leads: 3; buttons: not applicable, skip)\n");
  EXPECT_EQ(Config(file, {"--leads", "10"}),
            "element 1: options 2051 (leads: 10; buttons: not applicable, skip)\n");
  EXPECT_EQ(Config(file, {"--leads", "none"}),
            "element 1: options 3 (leads: none; buttons: not applicable, skip)\n");
  EXPECT_EQ(Config(file, {"--leads", "All"}),
            "element 1: options 4099 (leads: all; buttons: not applicable, skip)\n");
}

TEST_F(ConfigCommandTest, SeveralLeads_MeasuresTheOneNamed) {
  const auto file = NewDocument({"910"});
  EXPECT_EQ(Config(file, {"--options", "4104"}),
            "element 1: options 4104 (leads: 2 (set too, but not measured: all); buttons: none)\n");
  RunSound(file);
  EXPECT_EQ(SentIn(file + ".wire.log", 1), "STST,910,2");
}

TEST_F(ConfigCommandTest, AllowsAndForbidsButtons) {
  const auto file = NewDocument({"410"});
  EXPECT_EQ(Config(file, {"--no-na"}), "element 1: options 2 (buttons: skip)\n");
  EXPECT_EQ(Config(file, {"--no-skip"}), "element 1: options 0 (buttons: none)\n");
  EXPECT_EQ(Config(file, {"--allow-na"}), "element 1: options 1 (buttons: not applicable)\n");
  EXPECT_EQ(Config(file, {"--allow-skip", "--no-na"}), "element 1: options 2 (buttons: skip)\n");
  EXPECT_EQ(Config(file), "element 1: options 2 (buttons: skip)\n");
}

TEST_F(ConfigCommandTest, Sequence_HasAFilter) {
  const auto file = NewDocument({"400"});
  EXPECT_EQ(Config(file, {"--filter", "Maximum value"}),
            "element 1: options 3 (buttons: not applicable, skip), filter Maximum value\n");
}

TEST_F(ConfigCommandTest, OtherLeads_InvalidateTheResult) {
  const auto file = NewDocument({"910"});
  Done({"limit", file, "--element", "1", "--standard", "S", "--high", "100"});
  ASSERT_EQ(RunSound(file).status, 0);
  EXPECT_THAT(Config(file, {"--no-skip"}), Not(HasSubstr("no longer counts")));
  const auto changed = Config(file, {"--leads", "1"});
  EXPECT_THAT(changed, HasSubstr("element 1 no longer counts: not tested (was: passed): "));
}

class RefusedConfig : public ConfigCommandTest, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedConfig, NamesTheOptionAndChangesNothing) {
  const auto file = NewDocument({"910", "410", "1110"});
  ExpectRefused(Join({"config", file}, GetParam().words), GetParam().named);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedConfig,
    testing::Values(
        Refusal{"LeadEleven", {"--element", "1", "--leads", "11"}, {"--leads 11", "1 to 10"}},
        Refusal{"SeveralLeads", {"--element", "1", "--leads", "1,2"}, {"--leads 1,2", "once for each"}},
        Refusal{"NoWord", {"--element", "1", "--leads", ""}, {"--leads"}},
        Refusal{"LeadsOfATestWithout", {"--element", "2", "--leads", "1"}, {"--leads 1", "410"}},
        Refusal{"AllLeadsWhereEachIsMeasured",
                {"--element", "3", "--leads", "all"},
                {"--leads all", "1110", "one lead"}},
        Refusal{"BothWays", {"--element", "1", "--allow-na", "--no-na"}, {"--allow-na", "--no-na"}},
        Refusal{
            "NumberAndWords", {"--element", "1", "--options", "3", "--leads", "1"}, {"--options", "--leads"}},
        Refusal{"NoElement", {"--element", "9", "--leads", "1"}, {"--element 9"}}),
    kNamed);

}  // namespace
}  // namespace cli
