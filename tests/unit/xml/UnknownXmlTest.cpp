#include <gtest/gtest.h>

#include <sstream>

#include "host/xml/UnknownXml.h"
#include "host/xml/XmlNode.h"

namespace host {
namespace {

std::string Restored(const xml::UnknownXml& unknown, const char* into = "<a/>") {
  pugi::xml_document document;
  document.load_string(into);
  unknown.Restore(document.document_element());
  std::ostringstream text;
  document.document_element().print(text, "", pugi::format_raw);
  return text.str();
}

pugi::xml_document ParsedWithComments(const char* text) {
  pugi::xml_document document;
  document.load_string(text, pugi::parse_default | pugi::parse_comments);
  return document;
}

TEST(UnknownXml, KeepWhatIsNotNamed) {
  const auto document = ParsedWithComments("<a k='1' x='2'><known/><new><deep/></new><!--note-->text</a>");
  xml::UnknownXml unknown;
  unknown.Take(document.document_element(), {"k"}, {"known"});
  EXPECT_EQ(Restored(unknown), "<a x=\"2\"><new><deep/></new><!--note-->text</a>");
}

// Which of the two is meant cannot be known.
TEST(UnknownXml, RejectADuplicateKnownAttribute) {
  const auto document = ParsedWithComments("<a k='1' x='2' k='3'/>");
  xml::UnknownXml unknown;
  EXPECT_THROW(unknown.Take(document.document_element(), {"k"}, {}), xml::XmlError);
  EXPECT_NO_THROW(unknown.Take(document.document_element(), {"x"}, {}));
}

TEST(UnknownXml, ReturnTheValuesOfKnownAttributes) {
  const auto document = ParsedWithComments("<a b='2' x='3' a='1'/>");
  const char *first = "none", *second = "none", *third = "none";
  xml::UnknownXml unknown;
  unknown.TakeAttributes(document.document_element(), {{"a", first}, {"b", second}, {"c", third}});
  EXPECT_STREQ(first, "1");
  EXPECT_STREQ(second, "2");
  EXPECT_STREQ(third, "none");
  EXPECT_EQ(Restored(unknown), "<a x=\"3\"/>");
}

TEST(UnknownXml, NothingIsKeptOfAKnownNode) {
  const auto document = ParsedWithComments("<a k='1'><known/></a>");
  xml::UnknownXml unknown;
  unknown.Take(document.document_element(), {"k"}, {"known"});
  EXPECT_TRUE(unknown.Empty());
  EXPECT_EQ(Restored(unknown), "<a/>");
}

TEST(UnknownXml, TakingAgainReplacesWhatWasKept) {
  xml::UnknownXml unknown;
  unknown.Take(ParsedWithComments("<a x='1'/>").document_element(), {}, {});
  unknown.Take(ParsedWithComments("<a y='1'/>").document_element(), {}, {});
  EXPECT_EQ(Restored(unknown), "<a y=\"1\"/>");
  unknown.Take({}, {}, {});
  EXPECT_TRUE(unknown.Empty());
}

TEST(UnknownXml, DoNotOverwriteAnAttribute) {
  xml::UnknownXml unknown;
  unknown.Take(ParsedWithComments("<a x='old'/>").document_element(), {}, {});
  EXPECT_EQ(Restored(unknown, "<a x='new'/>"), "<a x=\"new\"/>");
}

TEST(UnknownXml, CopiesAreIndependent) {
  xml::UnknownXml first;
  first.Take(ParsedWithComments("<a x='1'/>").document_element(), {}, {});
  xml::UnknownXml second = first;
  first = {};
  EXPECT_TRUE(first.Empty());
  EXPECT_EQ(Restored(second), "<a x=\"1\"/>");
  second.Add(ParsedWithComments("<more/>").document_element());
  EXPECT_EQ(Restored(second), "<a x=\"1\"><more/></a>");
}

}  // namespace
}  // namespace host
