#include <gtest/gtest.h>

#include "host/services/XmlDocument.h"
#include "host/services/XmlNode.h"
#include "tests/host/Errors.h"

namespace bench {
namespace {

using orvik::HostError;
using test::ErrorNumber;

std::shared_ptr<orvik::IXmlNode> Parsed(const std::string& text) {
  const auto document = std::make_shared<XmlDocument>();
  EXPECT_TRUE(document->LoadFromString(text)) << document->LastError();
  return document->Root();
}

TEST(XmlNode, KeepsItsDocumentAlive) {
  auto node = Parsed("<a><b x='1'/></a>")->FirstChild();
  EXPECT_EQ(node->Name(), "b");
  EXPECT_EQ(node->Attribute("x"), "1");
}

TEST(XmlNode, KeepsItsDocumentWhenAnotherIsLoaded) {
  XmlDocument document;
  document.LoadFromString("<a>one</a>");
  const auto node = document.Root();
  document.LoadFromString("<b/>");
  EXPECT_EQ(node->Text(), "one");
  EXPECT_EQ(document.Root()->Name(), "b");
}

TEST(XmlNode, ChildrenAreElementsOnly) {
  const auto root = Parsed("<a>text<!-- c --><b/><![CDATA[x]]><c/></a>");
  EXPECT_EQ(root->ChildCount(), 2);
  EXPECT_EQ(root->FirstChild()->Name(), "b");
  EXPECT_EQ(root->FirstChild()->NextSibling()->Name(), "c");
  EXPECT_EQ(root->FirstChild()->NextSibling()->NextSibling(), nullptr);
  EXPECT_EQ(root->Text(), "textx");
}

TEST(XmlNode, NamesAreMatchedToTheLetter) {
  const auto root = Parsed("<a><Value/><value/></a>");
  EXPECT_EQ(root->FindChild("value")->Name(), "value");
  EXPECT_EQ(root->FindChild("VALUE"), nullptr);
  EXPECT_FALSE(root->HasAttribute("x"));
}

TEST(XmlNode, AttributeIsPresentEvenWhenEmpty) {
  const auto root = Parsed("<a x=''/>");
  EXPECT_TRUE(root->HasAttribute("x"));
  EXPECT_EQ(root->Attribute("x"), "");
  EXPECT_FALSE(root->HasAttribute("y"));
  EXPECT_EQ(root->Attribute("y"), "");
}

TEST(XmlNode, SetTextReplacesTheTextAndKeepsTheChildren) {
  const auto root = Parsed("<a>one<b/>two</a>");
  root->SetText("three");
  EXPECT_EQ(root->Text(), "three");
  EXPECT_EQ(root->ChildCount(), 1);
  root->SetText("");
  EXPECT_EQ(root->Text(), "");
}

TEST(XmlNode, AppendMovesANodeToTheEndAndLeavesTheLastOneThere) {
  const auto root = Parsed("<a><b/><c/></a>");
  root->Append(root->FirstChild());
  EXPECT_EQ(root->FirstChild()->Name(), "c");
  const auto last = root->FirstChild()->NextSibling();
  root->Append(last);
  EXPECT_EQ(root->ChildCount(), 2);
  EXPECT_EQ(root->FirstChild()->NextSibling()->Name(), "b");
}

TEST(XmlNode, AppendRefusesEmptyForeignAndEnclosingNodes) {
  const auto root = Parsed("<a><b/></a>");
  EXPECT_EQ(ErrorNumber([&] { root->Append(nullptr); }), HostError::kEmptyReference);
  EXPECT_EQ(ErrorNumber([&] { root->Append(Parsed("<c/>")); }), HostError::kInvalidArgument);
  EXPECT_EQ(ErrorNumber([&] { root->FirstChild()->Append(root); }), HostError::kInvalidArgument);
  EXPECT_EQ(root->ChildCount(), 1);
}

TEST(XmlNode, NamesThatNoFileCanHoldAreRefused) {
  const auto root = Parsed("<a/>");
  for (const auto* name : {"", "1a", "a b", "<", "a>", "-x", "a\"b"}) {
    EXPECT_EQ(ErrorNumber([&] { root->AddChild(name); }), HostError::kInvalidArgument) << name;
    EXPECT_EQ(ErrorNumber([&] { root->SetName(name); }), HostError::kInvalidArgument) << name;
    EXPECT_EQ(ErrorNumber([&] { root->SetAttribute(name, "x"); }), HostError::kInvalidArgument) << name;
  }
  root->SetName("gr\xC3\xB8n");
  EXPECT_EQ(root->Name(), "gr\xC3\xB8n");
}

TEST(XmlNode, NumberAttributeTellsWhatIsWrong) {
  const auto root = Parsed("<a ID='12' X='1x'/>");
  const auto node = XmlNode::Of(root).Raw();
  EXPECT_EQ(xml::NumberAttribute(node, "ID"), 12);
  EXPECT_TRUE(test::Holds(test::ErrorText([&] { xml::NumberAttribute(node, "X"); }), "\"X\" of \"a\""));
  EXPECT_EQ(ErrorNumber([&] { xml::NumberAttribute(node, "Y"); }), HostError::kTypeMismatch);
}

}  // namespace
}  // namespace bench
