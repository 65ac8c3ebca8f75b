#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

std::shared_ptr<orvik::IXmlDocument> NewDocument() {
  return NewHostObject<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
}

void Reading(Findings& findings) {
  const auto document = NewDocument();
  findings.Expect(!document->Root() && !document->FindElement("a"), "a new document is empty");
  findings.Expect(document->LoadFromString("<a x=''><!-- c --><b>one<c/>two</b><b y='2'/>tail</a>"),
                  "a document is parsed");
  findings.Equal("", document->LastError(), "error after a good load");
  const auto root = document->Root();
  findings.Equal("a", root->Name(), "root");
  findings.Equal("tail", root->Text(), "text directly below the root");
  findings.Expect(root->HasAttribute("x") && !root->HasAttribute("y"), "an empty attribute exists");
  findings.Equal(2, root->ChildCount(), "child elements");
  const auto first = root->FirstChild();
  findings.Equal("onetwo", first->Text(), "text around a child");
  findings.Equal("2", first->NextSibling()->Attribute("y"), "attribute of the second child");
  findings.Equal("", first->Attribute("y"), "absent attribute");
  findings.Expect(!first->NextSibling()->NextSibling() && !first->NextSibling()->FirstChild(),
                  "the end is empty");
  std::string visited;
  root->ForEachChild(
      [&](const std::string& name, const auto& child) { visited += name + child->Attribute("y") + ";"; });
  findings.Equal("b;b2;", visited, "child elements, each in its turn");
  findings.Expect(document->FindElement("c") && !document->FindElement("C"), "tags are case-sensitive");
  findings.Expect(root->FindChild("b") && !root->FindChild("c"), "only children are found among children");
}

void Malformed(Findings& findings) {
  const auto document = NewDocument();
  for (const std::string text :
       {"", " ", "no XML", "<a>", "<a><b></a></b>", "<a x=1/>", "<a/><b/>", "<", "<a>\xFF"}) {
    document->LoadFromString("<before/>");
    const bool loaded = document->LoadFromString(text);
    if (loaded) continue;  // a host may be more lenient than another, but it must say so
    findings.Expect(!document->Root(), "the document is empty after the malformed text \"" + text + "\"");
    findings.Expect(!document->LastError().empty(),
                    "a reason is given for the malformed text \"" + text + "\"");
  }
  findings.Expect(!document->LoadFromString("<a><b></a>"), "crossed tags are malformed");
  findings.Expect(!document->LoadFromString(""), "an empty text is malformed");
}

void Writing(Findings& findings) {
  const auto document = NewDocument();
  const auto root = document->CreateRoot("root");
  const std::string nasty = "<&>\"' \xC2\xB5 ]]>";
  const auto child = root->AddChild("child");
  child->SetText(nasty);
  child->SetAttribute("a", nasty);
  child->SetAttribute("a", nasty + "2");
  child->AddChild("grandchild");
  child->SetText(nasty);
  findings.Equal(1, child->ChildCount(), "children after the text was replaced");
  child->SetName("renamed");

  const auto again = NewDocument();
  findings.Expect(again->LoadFromString(document->SaveToString()), "what was saved can be loaded");
  const auto loaded = again->FindElement("renamed");
  if (!loaded) return findings.Expect(false, "a renamed element is saved under its new name");
  findings.Equal(nasty, loaded->Text(), "text after saving and loading");
  findings.Equal(nasty + "2", loaded->Attribute("a"), "attribute after saving and loading");
  for (const auto* name : {"", "1a", "a b", "<", "a>b"}) {
    findings.Refused(std::string("the tag \"") + name + "\"", [&] { root->AddChild(name); });
    findings.Refused(std::string("the new tag \"") + name + "\"", [&] { root->SetName(name); });
    findings.Refused(std::string("the attribute \"") + name + "\"", [&] { root->SetAttribute(name, ""); });
    findings.Refused(std::string("the root \"") + name + "\"", [&] { NewDocument()->CreateRoot(name); });
  }
  findings.Equal(1, root->ChildCount(), "children after refused tags");
}

void Appending(Findings& findings) {
  auto document = NewDocument();
  const auto root = document->CreateRoot("root");
  const auto one = root->AddChild("one");
  const auto two = root->AddChild("two");
  root->Append(two);
  findings.Equal("one", root->FirstChild()->Name(), "first child after appending the last again");
  root->Append(one);
  findings.Equal("two", root->FirstChild()->Name(), "first child after it was moved to the end");
  findings.Equal(2, root->ChildCount(), "children after moving");
  findings.Refused("appending nothing", [&] { root->Append(nullptr); });
  findings.Refused("appending a node above itself", [&] { one->Append(root); });
  findings.Refused("appending a node of another document",
                   [&] { root->Append(NewDocument()->CreateRoot("foreign")); });
  document.reset();
  findings.Equal("root", root->Name(), "a node keeps its document alive");
}

void Depth(Findings& findings) {
  std::string text;
  constexpr int kDepth = 10000;
  for (int level = 0; level < kDepth; ++level) text += "<n>";
  text += "<deepest/>";
  for (int level = 0; level < kDepth; ++level) text += "</n>";
  const auto document = NewDocument();
  if (!document->LoadFromString(text)) return;  // refusing is one way to survive it
  findings.Expect(document->FindElement("deepest") != nullptr, "an element is found at any depth");
  findings.Expect(!document->SaveToString().empty(), "a deep document is saved");
}

}  // namespace

void CheckXml(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"reading", Reading},
                      {"malformed texts", Malformed},
                      {"writing", Writing},
                      {"appending", Appending},
                      {"depth", Depth}});
}

}  // namespace check
