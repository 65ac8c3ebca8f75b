#include <gtest/gtest.h>

#include <sstream>

#include "host/xml/UnknownXml.h"
#include "host/xml/XmlNode.h"

namespace host {
namespace {

std::string Restored(const xml::UnknownXml& leftovers, const char* into = "<a/>") {
  pugi::xml_document document;
  document.load_string(into);
  leftovers.Restore(document.document_element());
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
  xml::UnknownXml leftovers;
  leftovers.Take(document.document_element(), {"k"}, {"known"});
  EXPECT_EQ(Restored(leftovers), "<a x=\"2\"><new><deep/></new><!--note-->text</a>");
}

// Which of the two is meant cannot be known.
TEST(UnknownXml, RejectADuplicateKnownAttribute) {
  const auto document = ParsedWithComments("<a k='1' x='2' k='3'/>");
  xml::UnknownXml leftovers;
  EXPECT_THROW(leftovers.Take(document.document_element(), {"k"}, {}), xml::XmlError);
  EXPECT_NO_THROW(leftovers.Take(document.document_element(), {"x"}, {}));
}

TEST(UnknownXml, ReturnTheValuesOfKnownAttributes) {
  const auto document = ParsedWithComments("<a b='2' x='3' a='1'/>");
  const char *first = "none", *second = "none", *third = "none";
  xml::UnknownXml leftovers;
  leftovers.TakeAttributes(document.document_element(), {{"a", first}, {"b", second}, {"c", third}});
  EXPECT_STREQ(first, "1");
  EXPECT_STREQ(second, "2");
  EXPECT_STREQ(third, "none");
  EXPECT_EQ(Restored(leftovers), "<a x=\"3\"/>");
}

TEST(UnknownXml, NothingIsKeptOfAKnownNode) {
  const auto document = ParsedWithComments("<a k='1'><known/></a>");
  xml::UnknownXml leftovers;
  leftovers.Take(document.document_element(), {"k"}, {"known"});
  EXPECT_TRUE(leftovers.Empty());
  EXPECT_EQ(Restored(leftovers), "<a/>");
}

TEST(UnknownXml, TakingAgainReplacesWhatWasKept) {
  xml::UnknownXml leftovers;
  leftovers.Take(ParsedWithComments("<a x='1'/>").document_element(), {}, {});
  leftovers.Take(ParsedWithComments("<a y='1'/>").document_element(), {}, {});
  EXPECT_EQ(Restored(leftovers), "<a y=\"1\"/>");
  leftovers.Take({}, {}, {});
  EXPECT_TRUE(leftovers.Empty());
}

TEST(UnknownXml, DoNotOverwriteAnAttribute) {
  xml::UnknownXml leftovers;
  leftovers.Take(ParsedWithComments("<a x='old'/>").document_element(), {}, {});
  EXPECT_EQ(Restored(leftovers, "<a x='new'/>"), "<a x=\"new\"/>");
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
