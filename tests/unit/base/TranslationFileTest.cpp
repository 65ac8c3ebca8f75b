#include <gtest/gtest.h>

#include "host/base/TranslationFile.h"
#include "tests/support/Errors.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;

TEST(TranslationFile, ReadsNumberedTexts) {
  const auto texts = ReadTranslations(R"(# A comment
msgid ""
msgstr ""
"Content-Type: text/plain; charset=UTF-8\n"

#: plugin
msgctxt "20702"
msgid "No values"
msgstr "Ingen v\"ærdi\"er"

msgctxt "202"
msgid "long"
msgstr ""
"first\n"
"second\\"
)",
                                      "x.po");
  EXPECT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts.at(20702), "Ingen v\"\xC3\xA6rdi\"er");
  EXPECT_EQ(texts.at(202), "first\nsecond\\");
}

TEST(TranslationFile, EntriesMayFollowWithoutEmptyLines) {
  const auto texts = ReadTranslations(
      "msgctxt \"1\"\nmsgid \"a\"\nmsgstr \"A\"\nmsgctxt \"2\"\r\nmsgid \"b\"\r\nmsgstr \"B\"", "x");
  EXPECT_EQ(texts.at(1), "A");
  EXPECT_EQ(texts.at(2), "B");
}

TEST(TranslationFile, FuzzyAndEmptyEntriesCountAsNotTranslated) {
  const auto texts = ReadTranslations(
      "#, fuzzy\nmsgctxt \"1\"\nmsgid \"a\"\nmsgstr \"A\"\n\nmsgctxt \"2\"\nmsgid \"b\"\nmsgstr \"\"\n\n"
      "msgctxt \"3\"\nmsgid \"c\"\nmsgstr \"C\"\n",
      "x");
  EXPECT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts.at(3), "C");
}

TEST(TranslationFile, EmptyFileHasNoTexts) { EXPECT_TRUE(ReadTranslations("", "x").empty()); }

TEST(TranslationFile, IgnoresAByteOrderMark) {
  EXPECT_EQ(ReadTranslations("\xEF\xBB\xBFmsgctxt \"1\"\nmsgid \"a\"\nmsgstr \"A\"\n", "x").at(1), "A");
}

struct MalformedTranslation {
  const char* text;
  const char* place;
};

class MalformedTranslations : public ::testing::TestWithParam<MalformedTranslation> {};

TEST_P(MalformedTranslations, IsRejectedWithFileAndLine) {
  const auto text = support::ErrorText([] { ReadTranslations(GetParam().text, "KELD.da.po"); });
  EXPECT_TRUE(support::Holds(text, "KELD.da.po, " + std::string(GetParam().place))) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MalformedTranslations,
    ::testing::Values(
        MalformedTranslation{"hello", "line 1"}, MalformedTranslation{"\"lost\"", "line 1"},
        MalformedTranslation{"msgctxt \"1\"\nmsgid \"a\"\n\n", "line 3"},
        MalformedTranslation{"msgctxt \"x\"\nmsgid \"a\"\nmsgstr \"A\"\n", "line 3"},
        MalformedTranslation{"msgctxt \"-1\"\nmsgid \"a\"\nmsgstr \"A\"\n", "line 3"},
        MalformedTranslation{"msgctxt \"1\"\nmsgid \"a\nmsgstr \"A\"\n", "line 2"},
        MalformedTranslation{"msgctxt 1\n", "line 1"}, MalformedTranslation{"msgid \"a\\x\"\n", "line 1"},
        MalformedTranslation{"msgid \"a\"b\"\n", "line 1"}, MalformedTranslation{"msgid \"a\\\"\n", "line 1"},
        MalformedTranslation{"msgid \"a\"\nmsgid \"b\"\n", "line 2"},
        MalformedTranslation{"msgid \"a\"\nmsgid_plural \"b\"\n", "line 2"},
        MalformedTranslation{"msgctxt \"1\"\nmsgid \"a\"\nmsgstr \"A\"\n\nmsgctxt \"1\"\nmsgid \"a\"\nmsgstr "
                             "\"B\"\n",
                             "line 7"}));

}  // namespace
}  // namespace host
