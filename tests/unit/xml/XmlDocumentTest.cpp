#include <gtest/gtest.h>

#include <random>

#include "host/xml/XmlDocument.h"
#include "host/xml/XmlNode.h"
#include "tests/support/Errors.h"
#include "tests/support/Seed.h"

namespace host {
namespace {

using support::Holds;

TEST(XmlDocument, FindsTheFirstElementInDocumentOrderAtAnyDepth) {
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString("<r><a><x n='1'/></a><x n='2'/></r>"));
  EXPECT_EQ(document.FindElement("x")->Attribute("n"), "1");
  EXPECT_EQ(document.FindElement("r")->Name(), "r");
  EXPECT_EQ(document.FindElement("none"), nullptr);
}

TEST(XmlDocument, NewDocumentIsEmpty) {
  xml::XmlDocument document;
  EXPECT_EQ(document.Root(), nullptr);
  EXPECT_EQ(document.FindElement("a"), nullptr);
  EXPECT_EQ(document.LastError(), "");
}

struct Malformed {
  const char* text;
  const char* place;
};

class MalformedXml : public ::testing::TestWithParam<Malformed> {};

TEST_P(MalformedXml, IsRejectedWithItsPlace) {
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString("<good/>"));
  EXPECT_FALSE(document.LoadFromString(GetParam().text));
  EXPECT_TRUE(support::Holds(document.LastError(), GetParam().place)) << GetParam().text;
  EXPECT_EQ(document.Root(), nullptr);
  EXPECT_TRUE(document.LoadFromString("<good/>"));
  EXPECT_EQ(document.LastError(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MalformedXml,
    ::testing::Values(Malformed{"", "line 1, column 1"}, Malformed{"  \n ", "line 2"},
                      Malformed{"plain text", "line 1"}, Malformed{"<a>", "line 1"},
                      Malformed{"<a>\n<b></a>", "line 2"}, Malformed{"<a x=1/>", "line 1"},
                      Malformed{"<a/>\n<b/>", "line 2"}, Malformed{"<a/>\ntrailing", "line 2"},
                      Malformed{"<a/>\n<![CDATA[x]]>", "line 2"}, Malformed{"<!DOCTYPE a><a/>", "line 1"},
                      Malformed{"<a><!-- never closed", "line 1"}, Malformed{"<a", "line 1"}));

TEST(XmlDocument, RejectsANulByte) {
  xml::XmlDocument document;
  EXPECT_FALSE(document.LoadFromString(std::string("<a>\0</a>", 8)));
  EXPECT_NE(document.LastError(), "");
}

TEST(XmlDocument, SavedTextIsIndentedByTwoBlanks) {
  xml::XmlDocument document;
  document.CreateRoot("a")->AddChild("b")->AddChild("c")->SetText("x & y");
  EXPECT_TRUE(support::Holds(document.SaveToString(), "<a>\n  <b>\n    <c>x &amp; y</c>\n  </b>\n</a>\n"));
}

TEST(XmlDocument, CommentsAndInstructionsAreKept) {
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString("<?go on?><!--top--><a><!--in--><b/></a>"));
  const auto text = document.SaveToString();
  for (const auto* part : {"<?go on?>", "<!--top-->", "<!--in-->"}) EXPECT_TRUE(support::Holds(text, part));
}

std::string RandomText(std::mt19937& random) {
  static const std::vector<std::string> kParts = {"a",
                                                  "Z",
                                                  " ",
                                                  "  ",
                                                  "\n",
                                                  "\t",
                                                  "<",
                                                  ">",
                                                  "&",
                                                  "\"",
                                                  "'",
                                                  "]]>",
                                                  "&amp;",
                                                  "\xC3\xB8",
                                                  "\xE2\x84\xA6",
                                                  "\xF0\x9F\x94\x8C",
                                                  "--",
                                                  "\x01",
                                                  "\r",
                                                  "%",
                                                  "::",
                                                  "0"};
  std::string text;
  const auto length = random() % 12;
  for (std::size_t i = 0; i < length; ++i) text += kParts[random() % kParts.size()];
  return text;
}

TEST(XmlDocument, AnyTextIsReadBackUnchanged) {
  std::mt19937 random(support::Seed());
  for (int round = 0; round < 2000; ++round) {
    const auto text = RandomText(random);
    const auto value = RandomText(random);
    xml::XmlDocument saved;
    const auto root = saved.CreateRoot("r");
    root->AddChild("t")->SetText(text);
    root->SetAttribute("v", value);
    xml::XmlDocument loaded;
    ASSERT_TRUE(loaded.LoadFromString(saved.SaveToString())) << loaded.LastError();
    ASSERT_EQ(loaded.Root()->FirstChild()->Text(), text);
    ASSERT_EQ(loaded.Root()->Attribute("v"), value);
  }
}

std::string Nested(int levels) {
  std::string text;
  for (int i = 0; i < levels; ++i) text += "<e>";
  text += "<last/>";
  for (int i = 0; i < levels; ++i) text += "</e>";
  return text;
}

TEST(XmlDocument, HandlesTenThousandLevels) {
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString(Nested(10000)));
  EXPECT_EQ(document.FindElement("last")->Name(), "last");
  const auto saved = document.SaveToString();
  // Indented, the text would be 400 MB.
  EXPECT_LT(saved.size(), 200000U);
  xml::XmlDocument again;
  EXPECT_TRUE(again.LoadFromString(saved));
  EXPECT_NE(again.FindElement("last"), nullptr);
}

TEST(XmlDocument, SurvivesAMillionLevels) {
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString(Nested(1000000)));
  EXPECT_NE(document.FindElement("last"), nullptr);
  EXPECT_FALSE(document.SaveToString().empty());
}

TEST(XmlDocument, LinesAreCountedFromOne) {
  EXPECT_EQ(xml::LineOf("a\nb\nc", 0), 1U);
  EXPECT_EQ(xml::LineOf("a\nb\nc", 2), 2U);
  EXPECT_EQ(xml::LineOf("a\nb\nc", 99), 3U);
}

}  // namespace
}  // namespace host
