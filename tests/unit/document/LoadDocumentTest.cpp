#include "host/document/Document.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;

std::string ElementText(int id, const std::string& inside = "") {
  return "    <TestElement ID=\"" + std::to_string(id) +
         "\" TestID=\"1\" PlugInID=\"GONE\" Class=\"gone.Test\">\n" + inside + "    </TestElement>\n";
}

std::string ElementTexts(int count) {
  std::string elements;
  for (int id = 1; id <= count; ++id) elements += ElementText(id);
  return elements;
}

std::string DocumentText(const std::string& elements) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<OrvikDocument Version=\"1\">\n  <Elements>\n" +
         elements + "  </Elements>\n  <More />\n</OrvikDocument>\n";
}

int Count(const std::string& text, const std::string& part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

class LoadDocument : public support::HostFixture {
 protected:
  std::shared_ptr<document::Document> Opened(const std::string& text) {
    folder_.Write("given.orvik", text);
    return document::Document::Open(host_, folder_.Path() / "given.orvik",
                                    document::DocumentFile::Use::kRead);
  }
  std::string Refusal(const std::string& text) {
    return support::ErrorText([&] { Opened(text); });
  }
};

TEST_F(LoadDocument, HoldsEachElementOnceAndInOrder) {
  const auto document = Opened(DocumentText(ElementTexts(200)));
  ASSERT_EQ(document->Elements()->Count(), 200);
  for (int id = 1; id <= 200; ++id) EXPECT_EQ(document->Elements()->item(id)->ID(), id);
  EXPECT_EQ(Count(document->Text(), "Class=\"gone.Test\""), 200);
  EXPECT_EQ(Count(document->Text(), "<More />"), 1);
  EXPECT_EQ(document->AddTest(110)->ID(), 201);
}

TEST_F(LoadDocument, KeepsChildrenInTheirSequence) {
  std::string children;
  for (int id = 2; id <= 150; ++id)
    children += "      <TestElement ID=\"" + std::to_string(id) +
                "\" TestID=\"110\" PlugInID=\"SAMPLE\" Class=\"sample.Element\" />\n";
  const auto document = Opened(DocumentText(
      "    <TestElement ID=\"1\" TestID=\"100\" PlugInID=\"SAMPLE\" Class=\"sample.Sequence\">\n" + children +
      "    </TestElement>\n" + ElementText(200)));
  ASSERT_EQ(document->Elements()->Count(), 2);
  EXPECT_EQ(In(document->Elements()->item(1))->Count(), 149);
  EXPECT_EQ(document->Elements()->item(2)->ID(), 200);
}

TEST_F(LoadDocument, AcceptsAnyLayoutOfTheSameXml) {
  for (const std::string elements : {
           "<Elements><TestElement ID='1' TestID='1'/></Elements>",
           "<Elements >\n    <TestElement ID='1' TestID='1'>\n    </TestElement>\n</Elements>",
           "<Elements>\n    <TestElement ID='1' TestID='1'>\n    </TestElement>\n    <!-- kept "
           "--></Elements>",
           "<Elements>\n    <!-- kept -->\n    <TestElement ID='1' TestID='1'>\n    "
           "</TestElement>\n</Elements>",
           "<Elements>\n    <TestElement ID='1' TestID='1'>\n    </TestElement >\n</Elements>",
       }) {
    const auto document = Opened("<OrvikDocument Version='1'>\n" + elements + "\n</OrvikDocument>");
    EXPECT_EQ(document->Elements()->Count(), 1) << elements;
    EXPECT_EQ(Count(document->Text(), "<TestElement"), 1) << elements;
    EXPECT_EQ(Count(document->Text(), "kept"), Count(elements, "kept")) << elements;
  }
  EXPECT_EQ(Opened("<OrvikDocument Version='1'><Elements></Elements></OrvikDocument>")->Elements()->Count(),
            0);
}

TEST_F(LoadDocument, IgnoresTagsInCommentsAndText) {
  const std::string tags = "\n    </TestElement>\n    <TestElement ID=\"7\">";
  for (const auto& inside :
       {"<Note><![CDATA[" + tags + "]]></Note>", "<!--" + tags + "-->", "<?n " + tags + "?>"}) {
    const auto document = Opened(DocumentText(ElementText(1, inside + "\n" + inside) + ElementText(2)));
    EXPECT_EQ(document->Elements()->Count(), 2);
    EXPECT_EQ(Count(document->Text(), tags.substr(5)), 2) << inside;
  }
  const auto commented =
      Opened("<OrvikDocument Version=\"1\">\n  <!-- <Elements>\n" + ElementTexts(3) +
             "  </Elements> -->\n  <Elements>\n" + ElementText(7) + "  </Elements>\n</OrvikDocument>\n");
  ASSERT_EQ(commented->Elements()->Count(), 1);
  EXPECT_EQ(commented->Elements()->item(1)->ID(), 7);
}

TEST_F(LoadDocument, IgnoresElementsOfAnUnknownSection) {
  const auto document = Opened("<OrvikDocument Version=\"1\">\n  <Other>\n    <Elements>\n" +
                               ElementTexts(3) + "    </Elements>\n  </Other>\n</OrvikDocument>\n");
  EXPECT_EQ(document->Elements()->Count(), 0);
  EXPECT_EQ(Count(document->Text(), "<Other>"), 1);
}

TEST_F(LoadDocument, ReportsTheLineOfAFault) {
  const auto good = ElementTexts(150);
  const auto line = "line " + std::to_string(3 + std::count(good.begin(), good.end(), '\n') + 1);
  const struct {
    std::string elements;
    std::string complaint;
  } cases[] = {
      {good + ElementText(12), line + ": the identifier 12 is used twice"},
      {good + "    <TestElement ID=\"15l\" TestID=\"1\"/>\n", line + ": the attribute \"ID\""},
      {good + ElementText(151, "<x>"), ": Start-end tags mismatch"},
  };
  for (const auto& row : cases)
    EXPECT_TRUE(support::Holds(Refusal(DocumentText(row.elements)), row.complaint)) << row.complaint;
  EXPECT_TRUE(support::Holds(Refusal(DocumentText(good) + DocumentText(good)), "second root element"));
}

TEST_F(LoadDocument, RejectsADuplicateIdentifier) {
  EXPECT_TRUE(support::Holds(Refusal(DocumentText(ElementText(7) + ElementText(3) + ElementText(3))),
                             "the identifier 3 is used twice"));
  EXPECT_TRUE(support::Holds(Refusal(DocumentText(ElementText(7) + ElementText(3) + ElementText(7))),
                             "the identifier 7 is used twice"));
  EXPECT_EQ(Opened(DocumentText(ElementText(7) + ElementText(3) + ElementText(5)))->Elements()->Count(), 3);
}

TEST_F(LoadDocument, RejectsASecondSection) {
  const std::string sections[] = {"  <Equipment Asset=\"1\" />\n", "  <Standards />\n", "  <Instruments />\n",
                                  "  <Runs />\n"};
  for (const auto& section : sections) {
    auto text = DocumentText(ElementTexts(3));
    text.insert(text.find("  <Elements>"), section + section);
    EXPECT_TRUE(support::Holds(Refusal(text), "line 4: there is a second ")) << section;
  }
  EXPECT_TRUE(support::Holds(
      Refusal(DocumentText(ElementTexts(3) + "  </Elements>\n  <Elements>\n" + ElementText(9))),
      "there is a second \"Elements\""));
}

TEST_F(LoadDocument, ReportsANewerVersionBeforeOtherFaults) {
  auto text = DocumentText(ElementTexts(2) + ElementText(1));
  text.replace(text.find("Version=\"1\""), 11, "Version=\"2\"");
  EXPECT_TRUE(support::Holds(Refusal(text), "newer version"));
}

}  // namespace
}  // namespace host
