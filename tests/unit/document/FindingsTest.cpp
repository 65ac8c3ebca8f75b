#include <gtest/gtest.h>

#include "host/document/Findings.h"
#include "host/xml/XmlDocument.h"

namespace host {
namespace {

TEST(Findings, AreSortedByTheirPlaceInTheText) {
  const std::string text = "<A>\n <B>\xC3\xB8<C/></B>\n</A>";
  pugi::xml_document xml;
  xml::Parse(text, xml);
  const auto b = xml.child("A").child("B");
  document::Findings findings(text);
  findings.Wrong(text.size() + 99, "end");
  findings.Note(b.child("C"), "c");
  findings.Wrong(b, "b");
  findings.Wrong(std::size_t{0}, "start");
  findings.Wrong(b, "b again");
  EXPECT_EQ(findings.LineOf(b), "2");
  const auto found = findings.InOrder();
  ASSERT_EQ(found.size(), 5U);
  const auto told = [&](std::size_t i) {
    return std::to_string(found[i].line) + ":" + std::to_string(found[i].column) + " " + found[i].text;
  };
  EXPECT_EQ(told(0), "1:1 start");
  EXPECT_EQ(told(1), "2:2 b");
  EXPECT_EQ(told(2), "2:2 b again");
  // Columns count letters, not bytes.
  EXPECT_EQ(told(3), "2:6 c");
  EXPECT_FALSE(found[3].wrong);
  EXPECT_EQ(told(4), "3:5 end");
}

}  // namespace
}  // namespace host
