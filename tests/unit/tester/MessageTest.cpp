#include <gtest/gtest.h>

#include <random>

#include "tester/Message.h"
#include "tests/support/Seed.h"

namespace sim {
namespace {

using Parameters = std::vector<std::string>;

TEST(MessageTest, SplitsMnemonicAndParameters) {
  const auto message = ParseMessage("gres,410,0,0.123,0,Ohm");
  ASSERT_TRUE(message);
  EXPECT_EQ(message->mnemonic, "gres");
  EXPECT_EQ(message->parameters, (Parameters{"410", "0", "0.123", "0", "Ohm"}));
}

TEST(MessageTest, AcceptsAMnemonicAlone) {
  const auto message = ParseMessage("IREM");
  ASSERT_TRUE(message);
  EXPECT_EQ(message->mnemonic, "IREM");
  EXPECT_TRUE(message->parameters.empty());
}

TEST(MessageTest, AcceptsEmptyParameters) {
  EXPECT_EQ(ParseMessage("a,")->parameters, (Parameters{""}));
  EXPECT_EQ(ParseMessage("a,,b,")->parameters, (Parameters{"", "b", ""}));
  EXPECT_EQ(ParseMessage(",x")->mnemonic, "");
}

TEST(MessageTest, AcceptsQuotedParameters) {
  EXPECT_EQ(ParseMessage(R"(a,"b,c","d""e","")")->parameters, (Parameters{"b,c", "d\"e", ""}));
  EXPECT_EQ(ParseMessage(R"(a,"""")")->parameters, (Parameters{"\""}));
}

TEST(MessageTest, RefusesUnmatchedQuotes) {
  for (const char* bad :
       {R"(a,")", R"(a,"b)", R"(a,"b"c)", R"(a,b"c)", R"(a,"b"")", R"(a,"""),", R"(a,b")"}) {
    EXPECT_FALSE(ParseMessage(bad)) << bad;
    EXPECT_EQ(MnemonicOf(bad), "a") << bad;
  }
}

TEST(MessageTest, KeepsBlanks) { EXPECT_EQ(ParseMessage("a, b ")->parameters, (Parameters{" b "})); }

TEST(MessageTest, QuotesOnlyWhereNeeded) {
  std::string line = "irem";
  for (const char* text : {"KELD(IN)", "a,b", "c\"d", ""}) AppendParameter(line, text);
  EXPECT_EQ(line, R"(irem,KELD(IN),"a,b","c""d",)");
}

TEST(MessageTest, ReadsBackWhatItAppended) {
  std::mt19937 random(support::Seed());
  const std::string alphabet = ",\"ab \xB5";
  for (int round = 0; round < 2000; ++round) {
    Parameters parameters(random() % 5);
    std::string line = "gres";
    for (std::string& parameter : parameters) {
      for (auto length = random() % 6; length > 0; --length)
        parameter += alphabet[random() % alphabet.size()];
      AppendParameter(line, parameter);
    }
    const auto message = ParseMessage(line);
    ASSERT_TRUE(message) << line;
    ASSERT_EQ(message->parameters, parameters) << line;
  }
}

}  // namespace
}  // namespace sim
