#include <gtest/gtest.h>

#include "host/cli/help/Suggestions.h"

namespace host {
namespace {

const std::vector<std::string> kCommands{"tests",     "new",   "add",    "remove", "move", "edit",
                                         "limit",     "check", "config", "run",    "show", "report",
                                         "standards", "gui",   "help",   "archive"};

TEST(Suggestions, FindTheIntendedCommand) {
  const std::vector<std::pair<const char*, const char*>> typed{
      {"rnu", "run"},     {"ru", "run"},        {"runn", "run"},        {"shwo", "show"},
      {"RUN", "run"},     {"reprot", "report"}, {"stand", "standards"}, {"confg", "config"},
      {"chekc", "check"}, {"--help", "help"},   {"achive", "archive"},  {"limits", "limit"}};
  for (const auto& [word, meant] : typed) EXPECT_EQ(cli::Nearest(word, kCommands), meant) << word;
}

TEST(Suggestions, LeaveOtherWordsAlone) {
  for (const auto* word : {"", "-", "fly", "xyz", "calibration", "d.orvik"})
    EXPECT_EQ(cli::Nearest(word, kCommands), "") << word;
  EXPECT_EQ(cli::Nearest(std::string(100000, 'r'), kCommands), "");
}

TEST(Suggestions, FindOptionsWithAnyDashes) {
  const std::vector<std::string> options{"-h", "--help", "--element", "--low", "--high"};
  EXPECT_EQ(cli::Nearest("--elemnt", options), "--element");
  EXPECT_EQ(cli::Nearest("-element", options), "--element");
  EXPECT_EQ(cli::Nearest("--hgih", options), "--high");
  EXPECT_EQ(cli::Nearest("--lwo", options), "--low");
}

TEST(Suggestions, ArePhrasedAsAQuestion) {
  EXPECT_EQ(cli::UnknownCommand("rnu", kCommands), "unknown command \"rnu\": did you mean \"run\"?");
  EXPECT_EQ(cli::UnknownCommand("fly", kCommands), "unknown command \"fly\"");
}

}  // namespace
}  // namespace host
