#include <gtest/gtest.h>

#include "host/xml/XmlDocument.h"
#include "host/xml/XmlNode.h"
#include "tests/support/Errors.h"

namespace host {
namespace {

using orvik::HostError;
using support::ErrorNumber;

std::shared_ptr<orvik::IXmlNode> Parsed(const std::string& text) {
  const auto document = std::make_shared<xml::XmlDocument>();
  EXPECT_TRUE(document->LoadFromString(text)) << document->LastError();
  return document->Root();
}

TEST(XmlNode, KeepsItsDocumentAlive) {
  auto node = Parsed("<a><b x='1'/></a>")->FirstChild();
  EXPECT_EQ(node->Name(), "b");
  EXPECT_EQ(node->Attribute("x"), "1");
}

TEST(XmlNode, KeepsItsDocumentWhenAnotherIsLoaded) {
  xml::XmlDocument document;
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

TEST(XmlNode, GivesEachChildElementInOrder) {
  std::string seen;
  const auto root = Parsed("<a>text<b x='1'/><!-- c --><c x='2'/><b x='3'/></a>");
  root->ForEachChild([&](const std::string& name, const auto& child) {
    EXPECT_EQ(child->Name(), name);
    seen += name + child->Attribute("x") + " ";
  });
  EXPECT_EQ(seen, "b1 c2 b3 ");
  root->FindChild("b")->ForEachChild([](const auto&, const auto&) { FAIL(); });
}

TEST(XmlNode, AVisitorMayKeepChildren) {
  std::vector<std::shared_ptr<orvik::IXmlNode>> kept;
  Parsed("<a><b x='1'/><c x='2'/><d/><e x='4'/></a>")->ForEachChild([&](const auto& name, const auto& child) {
    if (name != "d") kept.push_back(child);
  });
  ASSERT_EQ(kept.size(), 3U);
  EXPECT_EQ(kept[0]->Attribute("x"), "1");
  EXPECT_EQ(kept[1]->Attribute("x"), "2");
  EXPECT_EQ(kept[2]->Attribute("x"), "4");
}

TEST(XmlNode, AVisitorMayMoveAChildAndStopByAnError) {
  const auto root = Parsed("<a><b/><c/><d/></a>");
  const auto last = root->AddChild("last");
  std::string seen;
  const auto visit = [&](const std::string& name, const auto& child) {
    seen += name + " ";
    if (name == "b") last->Append(child);
    if (name == "c") throw HostError(HostError::kInvalidArgument, "test", "enough");
  };
  EXPECT_EQ(support::ErrorNumber([&] { root->ForEachChild(visit); }), HostError::kInvalidArgument);
  EXPECT_EQ(seen, "b c ");
  EXPECT_EQ(root->FirstChild()->Name(), "c");
  EXPECT_TRUE(last->FindChild("b"));
}

TEST(XmlReference, KeptReferenceKeepsItsNode) {
  const auto root = Parsed("<a><b/><c/></a>");
  const auto& raw = xml::XmlNode::Of(root);
  xml::XmlReference reference(raw.Document());
  EXPECT_EQ(reference.To(raw.Raw().child("b"))->Name(), "b");
  const auto kept = reference.To(raw.Raw().child("c"));
  EXPECT_EQ(reference.To(raw.Raw().child("b"))->Name(), "b");
  EXPECT_EQ(kept->Name(), "c");
}

TEST(XmlNode, MatchesNamesExactly) {
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

TEST(XmlNode, AppendMovesANodeToTheEnd) {
  const auto root = Parsed("<a><b/><c/></a>");
  root->Append(root->FirstChild());
  EXPECT_EQ(root->FirstChild()->Name(), "c");
  const auto last = root->FirstChild()->NextSibling();
  root->Append(last);
  EXPECT_EQ(root->ChildCount(), 2);
  EXPECT_EQ(root->FirstChild()->NextSibling()->Name(), "b");
}

TEST(XmlNode, AppendRejectsEmptyForeignAndEnclosingNodes) {
  const auto root = Parsed("<a><b/></a>");
  EXPECT_EQ(support::ErrorNumber([&] { root->Append(nullptr); }), HostError::kEmptyReference);
  EXPECT_EQ(support::ErrorNumber([&] { root->Append(Parsed("<c/>")); }), HostError::kInvalidArgument);
  EXPECT_EQ(support::ErrorNumber([&] { root->FirstChild()->Append(root); }), HostError::kInvalidArgument);
  EXPECT_EQ(root->ChildCount(), 1);
}

TEST(XmlNode, RejectsInvalidNames) {
  const auto root = Parsed("<a/>");
  for (const auto* name : {"", "1a", "a b", "<", "a>", "-x", "a\"b"}) {
    EXPECT_EQ(support::ErrorNumber([&] { root->AddChild(name); }), HostError::kInvalidArgument) << name;
    EXPECT_EQ(support::ErrorNumber([&] { root->SetName(name); }), HostError::kInvalidArgument) << name;
    EXPECT_EQ(support::ErrorNumber([&] { root->SetAttribute(name, "x"); }), HostError::kInvalidArgument)
        << name;
  }
  root->SetName("gr\xC3\xB8n");
  EXPECT_EQ(root->Name(), "gr\xC3\xB8n");
}

TEST(XmlNode, NumberAttributeReportsTheFault) {
  const auto root = Parsed("<a ID='12' X='1x'/>");
  const auto node = xml::XmlNode::Of(root).Raw();
  EXPECT_EQ(xml::NumberAttribute(node, "ID"), 12);
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { xml::NumberAttribute(node, "X"); }), "\"X\" of \"a\""));
  EXPECT_EQ(support::ErrorNumber([&] { xml::NumberAttribute(node, "Y"); }), HostError::kTypeMismatch);
}

}  // namespace
}  // namespace host
