#include <random>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "host/document/Document.h"
#include "tests/support/Seed.h"
#include "tests/unit/host/Errors.h"
#include "tests/unit/host/HostFixture.h"

// A large document is read in pieces, if it looks as it is saved; that must be seen in nothing that it holds.
namespace bench {
namespace {

using test::ErrorText;
using test::Holds;

std::string ElementText(int id, const std::string& inside = "") {
  return "    <TestElement ID=\"" + std::to_string(id) +
         "\" TestID=\"1\" PlugInID=\"GONE\" Class=\"gone.Test\">\n"
         "      <Information DisplayName=\"" +
         std::string(1000, 'n') + "\" />\n" + inside + "    </TestElement>\n";
}

std::string DocumentText(const std::string& elements) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<OrvikDocument Version=\"1\">\n  <Elements>\n" +
         elements + "  </Elements>\n  <More />\n</OrvikDocument>\n";
}

/// Elements enough for several pieces.
std::string ManyElements(int count = 200) {
  std::string elements;
  for (int id = 1; id <= count; ++id) elements += ElementText(id);
  return elements;
}

int Count(const std::string& text, const std::string& part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

/// Documents whose texts are read in pieces, or whole where pieces cannot be made of them.
class DocumentInPieces : public test::HostFixture {
 protected:
  std::shared_ptr<Document> Opened(const std::string& text) {
    folder_.Write("given.orvik", text);
    return Document::Open(host_, folder_.Path() / "given.orvik", DocumentFile::Use::kRead);
  }
  std::string Refusal(const std::string& text) {
    return ErrorText([&] { Opened(text); });
  }
};

TEST_F(DocumentInPieces, HoldsEachElementOnceAndInOrder) {
  const auto document = Opened(DocumentText(ManyElements()));
  ASSERT_EQ(document->Elements()->Count(), 200);
  for (int id = 1; id <= 200; ++id) EXPECT_EQ(document->Elements()->item(id)->ID(), id);
  EXPECT_EQ(Count(document->Text(), "Class=\"gone.Test\""), 200);
  EXPECT_EQ(Count(document->Text(), "<More />"), 1);
  EXPECT_EQ(document->AddTest(110)->ID(), 201);
}

TEST_F(DocumentInPieces, ElementsInsideOthersStayThere) {
  std::string inner;
  for (int id = 2; id <= 150; ++id)
    inner += "      <TestElement ID=\"" + std::to_string(id) +
             "\" TestID=\"110\" PlugInID=\"SAMPLE\" Class=\"sample.Element\">\n"
             "        <Information DisplayName=\"" +
             std::string(1000, 'i') + "\" />\n      </TestElement>\n";
  const auto document = Opened(DocumentText(
      "    <TestElement ID=\"1\" TestID=\"100\" PlugInID=\"SAMPLE\" Class=\"sample.Sequence\">\n" + inner +
      "    </TestElement>\n" + ElementText(200)));
  ASSERT_EQ(document->Elements()->Count(), 2);
  EXPECT_EQ(In(document->Elements()->item(1))->Count(), 149);
  EXPECT_EQ(document->Elements()->item(2)->ID(), 200);
}

// Nothing is lost of a text that does not look as documents are saved.
TEST_F(DocumentInPieces, OtherWaysToWriteTheSameHoldTheSame) {
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

// What looks like the end of an element may be anything else.
TEST_F(DocumentInPieces, EndOfAnElementThatIsNoneIsReadAsWhatItIs) {
  const std::string looks = "\n    </TestElement>\n    <TestElement ID=\"7\">";
  for (const auto& inside :
       {"<Note><![CDATA[" + looks + "]]></Note>", "<!--" + looks + "-->", "<?n " + looks + "?>"}) {
    const auto filled = inside + std::string(70'000, ' ') + inside + "\n";
    const auto document =
        Opened(DocumentText(ElementText(1, filled) + ManyElements(100).substr(ElementText(1).size())));
    EXPECT_EQ(document->Elements()->Count(), 100);
    EXPECT_EQ(Count(document->Text(), looks.substr(5)), 2) << inside;
  }
}

// The attempt to read it in pieces has read the sections before it failed.
TEST_F(DocumentInPieces, WhatIsReadWholeAfterAllHasEachSectionOnce) {
  const auto misleading = std::string(70'000, ' ') + "<!--\n    </TestElement>\n    <TestElement -->\n";
  auto text = DocumentText(ElementText(1, misleading) + ElementText(2));
  text.insert(text.find("  <Elements>"),
              "  <Standards>\n    <Standard Name=\"S\" Description=\"\" Number=\"1\" />\n  </Standards>\n"
              "  <Instruments>\n    <Instrument Index=\"1\" SerialNumber=\"7\" />\n  </Instruments>\n");
  const auto document = Opened(text);
  EXPECT_EQ(document->Elements()->Count(), 2);
  EXPECT_EQ(document->Standards()->Count(), 1);
  EXPECT_EQ(Count(document->Text(), "Name=\"S\""), 1);
  EXPECT_EQ(Count(document->Text(), "SerialNumber=\"7\""), 1);
}

TEST_F(DocumentInPieces, ElementsInACommentAreNone) {
  const auto commented =
      Opened("<OrvikDocument Version=\"1\">\n  <!-- <Elements>\n" + ManyElements() +
             "  </Elements> -->\n  <Elements>\n" + ElementText(7) + "  </Elements>\n</OrvikDocument>\n");
  ASSERT_EQ(commented->Elements()->Count(), 1);
  EXPECT_EQ(commented->Elements()->item(1)->ID(), 7);
}

TEST_F(DocumentInPieces, ElementsOfSomethingElseAreNotTheDocuments) {
  const auto document = Opened("<OrvikDocument Version=\"1\">\n  <Other>\n    <Elements>\n" + ManyElements() +
                               "    </Elements>\n  </Other>\n</OrvikDocument>\n");
  EXPECT_EQ(document->Elements()->Count(), 0);
  EXPECT_EQ(Count(document->Text(), "<Other>"), 1);
}

TEST_F(DocumentInPieces, FaultFarBehindIsToldWithItsLine) {
  const auto good = ManyElements(150);
  const auto lines = [&](const std::string& elements) {
    return std::to_string(3 + std::count(elements.begin(), elements.end(), '\n') + 1);
  };
  EXPECT_TRUE(Holds(Refusal(DocumentText(good + ElementText(12))),
                    "line " + lines(good) + ": the identifier 12 is used twice"));
  auto numberless = ElementText(151);
  numberless.replace(numberless.find("\"151\""), 5, "\"15l\"");
  EXPECT_TRUE(
      Holds(Refusal(DocumentText(good + numberless)), "line " + lines(good) + ": the attribute \"ID\""));
  EXPECT_TRUE(Holds(Refusal(DocumentText(good + ElementText(151, "<x>"))), ": Start-end tags mismatch"));
  EXPECT_TRUE(Holds(Refusal(DocumentText(good) + DocumentText(good)), "second root element"));
}

TEST_F(DocumentInPieces, IdentifierThatIsUsedTwiceBelowTheHighestIsRefused) {
  EXPECT_TRUE(Holds(Refusal(DocumentText(ElementText(7) + ElementText(3) + ElementText(3))),
                    "the identifier 3 is used twice"));
  EXPECT_TRUE(Holds(Refusal(DocumentText(ElementText(7) + ElementText(3) + ElementText(7))),
                    "the identifier 7 is used twice"));
  EXPECT_EQ(Opened(DocumentText(ElementText(7) + ElementText(3) + ElementText(5)))->Elements()->Count(), 3);
}

TEST_F(DocumentInPieces, SecondSectionIsRefused) {
  const std::string sections[] = {"  <Equipment Asset=\"1\" />\n", "  <Standards />\n",
                                  "  <Instruments />\n"};
  for (const auto& section : sections) {
    auto text = DocumentText(ManyElements(3));
    text.insert(text.find("  <Elements>"), section + section);
    EXPECT_TRUE(Holds(Refusal(text), "line 4: there is a second ")) << section;
  }
  EXPECT_TRUE(Holds(Refusal(DocumentText(ManyElements(3) + "  </Elements>\n  <Elements>\n" + ElementText(9))),
                    "there is a second \"Elements\""));
}

TEST_F(DocumentInPieces, NewerVersionIsToldBeforeItsElements) {
  auto text = DocumentText(ManyElements() + ElementText(1));
  text.replace(text.find("Version=\"1\""), 11, "Version=\"2\"");
  EXPECT_TRUE(Holds(Refusal(text), "newer version"));
}

// Damage anywhere: the same document, or the same refusal, as when the text cannot be cut.
TEST_F(DocumentInPieces, AnyDamageIsSeenAsInTheWholeText) {
  std::mt19937 random(support::Seed());
  const auto text = DocumentText(ManyElements(100));
  const auto outcome = [&](const std::string& given) {
    try {
      return Opened(given)->Text();
    } catch (const orvik::HostError& error) {
      return error.Description();
    }
  };
  for (int round = 0; round < 60; ++round) {
    auto damaged = text;
    constexpr std::string_view kLetters = "<>/\"'!-&; =\nTE0";
    for (int times = 1 + static_cast<int>(random() % 2); times > 0; --times)
      damaged[random() % damaged.size()] = kLetters[random() % kLetters.size()];
    // A blank in the tag, and the text is not cut; lines and texts are the same.
    auto whole = damaged;
    const auto tag = whole.find("<Elements>");
    if (tag == std::string::npos) continue;
    whole.replace(tag, 10, "<Elements >");
    EXPECT_TRUE(outcome(damaged) == outcome(whole)) << outcome(damaged).substr(0, 300) << "\n"
                                                    << outcome(whole).substr(0, 300);
  }
}

}  // namespace
}  // namespace bench
