#include <gtest/gtest.h>

#include <string>

#include "tests/house/SourceText.h"

namespace house {
namespace {

struct Example {
  const char* text;
  const char* code;
  const char* comments;
};

class TakeApartTest : public testing::TestWithParam<Example> {};

TEST_P(TakeApartTest, KeepsCodeAndCommentsApart) {
  const auto parts = TakeApart(GetParam().text);
  EXPECT_EQ(parts.code, GetParam().code);
  EXPECT_EQ(parts.comments, GetParam().comments);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TakeApartTest,
    testing::Values(Example{"int a;  // why\nint b;", "int a;  \nint b;", "// why\n"},
                    Example{"a /* x\ny */ b", "a  \n b", "/* x\ny */"},
                    Example{"Say(\"// none\");", "Say(\"\");", ""},
                    Example{R"(Say("a\"b") /*c*/;)", R"(Say("")  ;)", "/*c*/"},
                    Example{"Say(R\"x(// \" none)x\", u8\"y\");", "Say(R\"\", u8\"\");", ""},
                    Example{"R\"(a\nb)\"; c", "R\n\"\"; c", "\n"},
                    Example{"char a = '\"', b = '\\''; c", "char a = '', b = ''; c", ""},
                    Example{"long a = 1'000; // b", "long a = 1'000; ", "// b"},
                    Example{"a = u'x';", "a = u'';", ""}, Example{"/* no end", " ", "/* no end"},
                    Example{"\"no end", "\"", ""}, Example{"", "", ""}));

TEST(Includes, TellNameKindAndLine) {
  const std::string text = "// #include <no>\n#include <string>\n  # include \"a/B.h\"  // why\nint c;\n";
  const auto includes = Includes(text, TakeApart(text));
  ASSERT_EQ(includes.size(), 2U);
  EXPECT_EQ(includes[0].name, "string");
  EXPECT_FALSE(includes[0].quoted);
  EXPECT_EQ(includes[0].line, 2);
  EXPECT_EQ(includes[1].name, "a/B.h");
  EXPECT_TRUE(includes[1].quoted);
  EXPECT_EQ(includes[1].line, 3);
}

TEST(Lines, CountALastLineWithoutEnd) {
  EXPECT_EQ(Lines("a\n\nb"), (std::vector<std::string>{"a", "", "b"}));
  EXPECT_EQ(Lines("a\n"), (std::vector<std::string>{"a"}));
  EXPECT_TRUE(Lines("").empty());
}

TEST(HasWord, FindsWholeWordsOnly) {
  EXPECT_TRUE(HasWord("std::sleep(1)", "sleep"));
  EXPECT_TRUE(HasWord("sleepy sleep", "sleep"));
  EXPECT_FALSE(HasWord("no_sleep sleepy asleep", "sleep"));
}

}  // namespace
}  // namespace house
