#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class ConfigCommandTest : public CliTest {
 protected:
  /// What `config` prints for the first element.
  std::string Config(const std::string& file, const Words& more = {}) const {
    Words words{"config", file, "--element", "1"};
    words.insert(words.end(), more.begin(), more.end());
    const auto done = Bench(words);
    EXPECT_EQ(done.status, 0) << done.error;
    return done.out;
  }
};

TEST_F(ConfigCommandTest, LeadsAreNamed) {
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

TEST_F(ConfigCommandTest, TheLeadThatIsNamedIsMeasured) {
  const auto file = NewDocument({"910"});
  EXPECT_EQ(Config(file, {"--options", "4104"}),
            "element 1: options 4104 (leads: 2 (set too, but not measured: all); buttons: none)\n");
  Bench(Simulated(file, "sound-class-1"));
  EXPECT_EQ(SentIn(file + ".wire.log", 1), "STST,910,2");
}

TEST_F(ConfigCommandTest, ButtonsAreAllowedAndTakenBack) {
  const auto file = NewDocument({"410"});
  EXPECT_EQ(Config(file, {"--no-na"}), "element 1: options 2 (buttons: skip)\n");
  EXPECT_EQ(Config(file, {"--no-skip"}), "element 1: options 0 (buttons: none)\n");
  EXPECT_EQ(Config(file, {"--allow-na"}), "element 1: options 1 (buttons: not applicable)\n");
  EXPECT_EQ(Config(file, {"--allow-skip", "--no-na"}), "element 1: options 2 (buttons: skip)\n");
  EXPECT_EQ(Config(file), "element 1: options 2 (buttons: skip)\n");
}

TEST_F(ConfigCommandTest, ASequenceHasAFilter) {
  const auto file = NewDocument({"400"});
  EXPECT_EQ(Config(file, {"--filter", "Maximum value"}),
            "element 1: options 3 (buttons: not applicable, skip), filter Maximum value\n");
}

TEST_F(ConfigCommandTest, OtherLeadsMakeAResultNoLongerCount) {
  const auto file = NewDocument({"910"});
  ASSERT_EQ(Bench({"limit", file, "--element", "1", "--standard", "S", "--high", "100"}).status, 0);
  ASSERT_EQ(Bench(Simulated(file, "sound-class-1")).status, 0);
  EXPECT_EQ(Config(file, {"--no-skip"}).find("no longer counts"), std::string::npos);
  const auto changed = Config(file, {"--leads", "1"});
  EXPECT_NE(changed.find("element 1 no longer counts: not tested (was: passed): "), std::string::npos)
      << changed;
}

struct ConfigRefusal {
  const char* name;
  std::vector<std::string> words;
  std::vector<std::string> told;
};

class RefusedConfig : public ConfigCommandTest, public testing::WithParamInterface<ConfigRefusal> {};

TEST_P(RefusedConfig, NamesTheOptionAndChangesNothing) {
  const auto file = NewDocument({"910", "410", "1110"});
  const auto before = Contents(file);
  Words words{"config", file};
  words.insert(words.end(), GetParam().words.begin(), GetParam().words.end());
  const auto refused = Bench(words);
  EXPECT_EQ(refused.status, 3) << refused.out;
  EXPECT_EQ(refused.out, "");
  for (const auto& told : GetParam().told)
    EXPECT_NE(refused.error.find(told), std::string::npos) << told << " is not in: " << refused.error;
  EXPECT_EQ(Contents(file), before);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedConfig,
    testing::Values(
        ConfigRefusal{"LeadEleven", {"--element", "1", "--leads", "11"}, {"--leads 11", "1 to 10"}},
        ConfigRefusal{"SeveralLeads", {"--element", "1", "--leads", "1,2"}, {"--leads 1,2", "once for each"}},
        ConfigRefusal{"NoWord", {"--element", "1", "--leads", ""}, {"--leads"}},
        ConfigRefusal{"LeadsOfATestWithout", {"--element", "2", "--leads", "1"}, {"--leads 1", "410"}},
        ConfigRefusal{"AllLeadsWhereEachIsMeasured",
                      {"--element", "3", "--leads", "all"},
                      {"--leads all", "1110", "one lead"}},
        ConfigRefusal{"BothWays", {"--element", "1", "--allow-na", "--no-na"}, {"--allow-na", "--no-na"}},
        ConfigRefusal{
            "NumberAndWords", {"--element", "1", "--options", "3", "--leads", "1"}, {"--options", "--leads"}},
        ConfigRefusal{"NoElement", {"--element", "9", "--leads", "1"}, {"--element 9"}}),
    [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
}  // namespace cli
