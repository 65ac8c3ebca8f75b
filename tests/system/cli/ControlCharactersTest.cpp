#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

/// Texts with characters that no document holds.
class ControlCharactersTest : public CliTest {};

TEST_F(ControlCharactersTest, AreRefusedWithTheOptionNamed) {
  const auto file = NewDocument({"410"});
  const auto before = Contents(file);
  for (const std::string bad :
       {"PUMP\x07", "PUMP\n7", "\t", "PUMP\x7F", "PUMP\xC2\x9B", "PUMP\xEF\xBF\xBF", "PUMP\xE4"}) {
    for (const auto& words :
         {Words{"--asset", "new", Path("n.orvik"), "--add", "410", "--asset", bad},
          Words{"--serial", "edit", file, "--serial", bad}, Words{"--maker", "edit", file, "--maker", bad},
          Words{"--model", "edit", file, "--model", bad}, Words{"--comment", "edit", file, "--comment", bad},
          Words{"--by", "run", file, "--simulate", "--by", bad},
          Words{"--standard", "limit", file, "--element", "1", "--standard", bad, "--high", "1"},
          Words{"--description", "limit", file, "--element", "1", "--standard", "S", "--description", bad,
                "--high", "1"},
          Words{"--unit", "limit", file, "--element", "1", "--standard", "S", "--high", "1", "--unit", bad},
          Words{"--serial", "calibrate", "--simulate", "--serial", bad}}) {
      const auto refused = Bench({words.begin() + 1, words.end()});
      EXPECT_EQ(refused.status, 3) << words[0];
      EXPECT_THAT(refused.error,
                  HasSubstr("orvik-bench: " + words[0] + ": the text has a control character"));
    }
  }
  EXPECT_EQ(Contents(file), before);
  EXPECT_FALSE(std::filesystem::exists(Path("n.orvik")));
}

TEST_F(ControlCharactersTest, FileNamesMayHaveThem) {
  const auto file = Path("a\x07.orvik");
  Done({"new", file, "--add", "410", "--asset", "Gerät 7 – µA Ω"});
  Done({"show", file});
}

}  // namespace
}  // namespace cli
