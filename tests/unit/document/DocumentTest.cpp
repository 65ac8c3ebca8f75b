#include <random>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/document/Document.h"
#include "host/document/SavedElements.h"
#include "host/elements/Nesting.h"
#include "host/instruments/InstrumentColl.h"
#include "host/instruments/InstrumentRecord.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"
#include "tests/support/Seed.h"

namespace host {
namespace {

using namespace std::string_literals;
using orvik::HostError;
using support::ErrorNumber;
using support::ErrorText;
using support::Holds;

class DocumentTest : public support::HostFixture {
 protected:
  std::shared_ptr<document::Document> New(const std::string& name = "a.orvik") {
    return document::Document::Create(host_, folder_.Path() / name);
  }
  std::shared_ptr<document::Document> Reopen(const std::string& name = "a.orvik") {
    return document::Document::Open(host_, folder_.Path() / name, document::DocumentFile::Use::kRead);
  }
  /// Opens a document of this text.
  std::shared_ptr<document::Document> Opened(const std::string& text) {
    folder_.Write("given.orvik", text);
    return Reopen("given.orvik");
  }
  /// How a document of this text is refused.
  std::string Refusal(const std::string& text) {
    return support::ErrorText([&] { Opened(text); });
  }
};

TEST_F(DocumentTest, NewDocumentIsEmptyAndReadsBackEmpty) {
  const auto document = New();
  EXPECT_EQ(document->Elements()->Count(), 0);
  document->Save();
  const auto again = Reopen();
  EXPECT_EQ(again->Elements()->Count(), 0);
  EXPECT_EQ(again->Standards()->Count(), 0);
  EXPECT_EQ(again->Instruments()->Count(), 0);
  EXPECT_EQ(again->equipment, document::Document::Equipment());
  EXPECT_TRUE(support::Holds(folder_.Read("a.orvik"),
                             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<OrvikDocument Version=\"1\">"));
}

TEST_F(DocumentTest, EverythingReadsBack) {
  const auto document = New();
  document->equipment = {"A-1", "S \"2\"", "M & N", "X<3>"};
  const auto standard = Make<orvik::IStandard>(orvik::HostClasses::kStandard);
  standard->Initialize("IEC 62353", "class I", 1);
  document->Standards()->Add(standard);
  const auto record = std::make_shared<instruments::InstrumentRecord>();
  record->SetSerialNumber("17");
  record->SetIndex(1);
  document->Instruments()->Add(record);
  document->AddTest(110);
  document->Save();
  const auto again = Reopen();
  EXPECT_EQ(again->equipment, document->equipment);
  EXPECT_NE(again->Standards()->Find("IEC 62353", "class I"), nullptr);
  EXPECT_EQ(again->Instruments()->item(1)->SerialNumber(), "17");
  EXPECT_EQ(again->Elements()->item(1)->TestID(), 110);
  EXPECT_EQ(again->Elements()->item(1)->Information()->DisplayName(), "Voltage");
  EXPECT_EQ(orvik::As<sample::ISampleTest>(again->Elements()->item(1))->sUnit, "V");
  EXPECT_EQ(again->Text(), document->Text());
}

TEST_F(DocumentTest, NumbersElementsInDocumentOrderFromOne) {
  const auto document = New();
  document->AddTest(110);
  const auto group = document->AddTest(100);
  document->AddTest(120);
  EXPECT_EQ(document->Elements()->item(1)->ID(), 1);
  EXPECT_EQ(group->ID(), 2);
  EXPECT_EQ(In(group)->item(1)->ID(), 3);
  EXPECT_EQ(In(group)->item(2)->ID(), 4);
  EXPECT_EQ(In(group)->item(3)->ID(), 5);
  EXPECT_EQ(In(In(group)->item(3))->item(1)->ID(), 6);
  EXPECT_EQ(document->Elements()->item(3)->ID(), 7);
  EXPECT_EQ(document->Find(6)->TestID(), 210);
  EXPECT_EQ(document->Find(8), nullptr);
}

TEST_F(DocumentTest, NumbersContinueAfterTheHighestLoaded) {
  const auto document = Opened(
      "<OrvikDocument Version='1'><Elements><TestElement ID='3' TestID='110' PlugInID='SAMPLE'/>"
      "<TestElement ID='9' TestID='1' PlugInID='GONE'><TestElement ID='41' TestID='1'/></TestElement>"
      "</Elements></OrvikDocument>");
  EXPECT_EQ(document->AddTest(110)->ID(), 42);
}

TEST_F(DocumentTest, TestIsAddedToASequence) {
  const auto document = New();
  const auto group = document->AddTest(200);
  const auto added = document->AddTest(110, group);
  EXPECT_EQ(added->Parent(), group);
  EXPECT_EQ(In(group)->Count(), 2);
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { document->AddTest(110, added); }), "is not a sequence"));
}

TEST_F(DocumentTest, UnknownTestIsNamed) {
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { New()->AddTest(411); }), "no test 411"));
}

TEST_F(DocumentTest, AddsACopyOfTheCataloguesTest) {
  const auto document = New();
  document->AddTest(110)->Information()->SetDisplayName("changed");
  EXPECT_EQ(document->AddTest(110)->Information()->DisplayName(), "Voltage");
}

// A file of another program, with its letters in its own encoding.
TEST_F(DocumentTest, OtherEncodingsAreReadAndSavedAsUtf8) {
  const std::string wide =
      "<\0O\0r\0v\0i\0k\0D\0o\0c\0u\0m\0e\0n\0t\0 \0V\0e\0r\0s\0i\0o\0n\0=\0'\0"
      "1\0'\0>\0"
      "<\0E\0q\0u\0i\0p\0m\0e\0n\0t\0 \0A\0s\0s\0e\0t\0=\0'\0\xB5\0'\0/\0>\0"
      "<\0/\0O\0r\0v\0i\0k\0D\0o\0c\0u\0m\0e\0n\0t\0>\0"s;
  const std::string narrow = "<OrvikDocument Version='1'><Equipment Asset='\xB5'/></OrvikDocument>";
  for (const auto& bytes :
       {"<?xml version='1.0' encoding='iso-8859-1'?>" + narrow,
        "<?xml version='1.0' encoding='windows-1252'?>" + narrow, wide, "\xFF\xFE" + wide}) {
    folder_.Write("given.orvik", bytes);
    auto document = document::Document::Open(host_, folder_.Path() / "given.orvik");
    EXPECT_EQ(document->equipment.asset, "µ");
    document->Save();
    const auto saved = folder_.Read("given.orvik");
    EXPECT_TRUE(support::Holds(saved, "encoding=\"UTF-8\""));
    EXPECT_TRUE(support::Holds(saved, "Asset=\"µ\""));
  }
}

TEST_F(DocumentTest, RejectsTooDeepNestingBeforeLoading) {
  for (const int levels : {elements::kDeepestNesting + 1, 10000}) {
    std::string text = "<OrvikDocument Version='1'><Elements>";
    for (int level = 1; level <= levels; ++level)
      text += "<TestElement ID='" + std::to_string(level) +
              "' TestID='100' PlugInID='SAMPLE' Class='sample.Sequence'>";
    for (int level = 1; level <= levels; ++level) text += "</TestElement>";
    EXPECT_TRUE(support::Holds(Refusal(text + "</Elements></OrvikDocument>"), "more than 1000 levels"));
  }
}

TEST_F(DocumentTest, DeepestAllowedDocumentReadsBack) {
  const auto document = New();
  document->Elements()->Add(Chain(elements::kDeepestNesting), {}, {});
  document->Save();
  EXPECT_EQ(Reopen()->Text(), document->Text());
}

TEST_F(DocumentTest, DoesNotSaveATooDeepDocument) {
  const auto document = New();
  document->AddTest(110);
  document->Save();
  const auto before = folder_.Read("a.orvik");
  document->Elements()->Add(Chain(elements::kDeepestNesting + 1), {}, {});
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { document->Save(); }),
                             "a.orvik was not saved: elements are nested"));
  EXPECT_EQ(folder_.Read("a.orvik"), before);
}

TEST_F(DocumentTest, KeepsDeepUnknownXml) {
  std::string deep;
  for (int i = 0; i < 10000; ++i) deep += "<x>";
  for (int i = 0; i < 10000; ++i) deep += "</x>";
  const auto document = Opened("<OrvikDocument Version='1'><Foreign>" + deep + "</Foreign></OrvikDocument>");
  folder_.Write("again.orvik", document->Text());
  EXPECT_EQ(Reopen("again.orvik")->Text(), document->Text());
}

TEST_F(DocumentTest, KeepsDeepUnknownXmlBesideElements) {
  std::string deep;
  for (int i = 0; i < 300; ++i) deep += "<x>";
  for (int i = 0; i < 300; ++i) deep += "</x>";
  const auto text = Opened(
                        "<OrvikDocument Version='1'><Elements><TestElement ID='1' TestID='1' PlugInID='GONE' "
                        "Class='g'/></Elements><Foreign>" +
                        deep + "</Foreign></OrvikDocument>")
                        ->Text();
  folder_.Write("again.orvik", text);
  const auto again = Reopen("again.orvik");
  EXPECT_EQ(again->Elements()->Count(), 1);
  EXPECT_EQ(again->Text(), text);
}

TEST_F(DocumentTest, KeepsUnknownXml) {
  const auto text =
      Opened(
          "<!--top--><OrvikDocument Version='1' Extra='e'><Equipment Asset='a' Room='r'><Photo/></Equipment>"
          "<Standards Mode='m'/><Instruments><Other/></Instruments><Elements Sort='s'><!--el--></Elements>"
          "<Signature>abc</Signature></OrvikDocument>")
          ->Text();
  for (const auto* part : {"<!--top-->", "Extra=\"e\"", "Room=\"r\"", "<Photo />", "Mode=\"m\"", "<Other />",
                           "Sort=\"s\"", "<!--el-->", "<Signature>abc</Signature>"})
    EXPECT_TRUE(support::Holds(text, part));
}

TEST_F(DocumentTest, IgnoresLineBreaksInAnEmptyElement) {
  const auto text = Opened(
                        "<OrvikDocument Version='1'>\n  <Equipment Asset='a'>\n  </Equipment>\n"
                        "  <More>\n  </More>\n</OrvikDocument>")
                        ->Text();
  EXPECT_TRUE(support::Holds(text, "<Equipment Asset=\"a\" Serial=\"\" Maker=\"\" Model=\"\" />"));
  EXPECT_TRUE(support::Holds(text, "<More>\n  </More>"));
  EXPECT_EQ(Opened(text)->Text(), text);
}

TEST_F(DocumentTest, KeepsReferencesInCommentsAndText) {
  const auto text = Opened(
                        "<OrvikDocument Version='1'><!--&#0;--><Photo><![CDATA[&#xD800;]]></Photo>"
                        "<More Kept='&#;&#x;&#0&#x1;&#9;&#x1F600;&#00065;&amp;#0;'/></OrvikDocument>")
                        ->Text();
  for (const auto* part : {"<!--&#0;-->", "<![CDATA[&#xD800;]]>",
                           "Kept=\"&amp;#;&amp;#x;&amp;#0&#01;&#09;\xF0\x9F\x98\x80"
                           "A&amp;#0;\""})
    EXPECT_TRUE(support::Holds(text, part));
}

TEST_F(DocumentTest, SavingTwiceGivesTheSameText) {
  const auto text =
      "<OrvikDocument Version='1' Extra='e'><Elements><TestElement ID='1' TestID='1' PlugInID='GONE' "
      "Class='g'><Deep><er/></Deep></TestElement></Elements><More/></OrvikDocument>";
  const auto once = Opened(text)->Text();
  folder_.Write("b.orvik", once);
  EXPECT_EQ(Reopen("b.orvik")->Text(), once);
}

// Elements are written one after the other; the text is that of the whole tree.
TEST_F(DocumentTest, WritesElementsInTheirPlace) {
  const std::string element =
      "    <TestElement ID=\"%\" TestID=\"1\" PlugInID=\"gone\" Class=\"gone.Test\">\n"
      "      <Information DisplayName=\"5 &lt; 6 &amp; 7\" />\n"
      "    </TestElement>\n";
  const auto with = [&](const char* id) {
    auto text = element;
    return text.replace(text.find('%'), 1, id);
  };
  const std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!-- kept -->\n"
      "<OrvikDocument Version=\"1\">\n"
      "  <Equipment Asset=\"\" Serial=\"\" Maker=\"\" Model=\"\" />\n"
      "  <Standards />\n"
      "  <Instruments />\n"
      "  <Elements Order=\"kept\">\n" +
      with("1") + with("2") +
      "    <Note>kept</Note>\n"
      "    <!-- kept -->\n"
      "  </Elements>\n"
      "  <Appendix />\n"
      "</OrvikDocument>\n";
  auto saved = Opened(text)->Text();
  // The comment in front goes to the end, as ever.
  const std::string comment = "<!-- kept -->\n";
  EXPECT_EQ(saved.substr(saved.size() - comment.size()), comment);
  saved.resize(saved.size() - comment.size());
  EXPECT_EQ(saved.insert(saved.find("<OrvikDocument"), comment), text);
}

TEST_F(DocumentTest, TwoProgramsCannotBothOpenItForWriting) {
  New()->Save();
  const auto held = document::Document::Open(host_, folder_.Path() / "a.orvik");
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { document::Document::Open(host_, folder_.Path() / "a.orvik"); }),
                     "open in another program"));
  EXPECT_NE(Reopen(), nullptr);
}

TEST_F(DocumentTest, SavesUnderAnotherName) {
  const auto document = New();
  document->Save();
  document->equipment.asset = "moved";
  document->MoveTo(folder_.Path() / "b.orvik");
  document->Save();
  EXPECT_EQ(Reopen("a.orvik")->equipment.asset, "");
  EXPECT_EQ(Reopen("b.orvik")->equipment.asset, "moved");
}

/// Makes documents at random.
class Generator {
 public:
  Generator(std::mt19937& random, const std::shared_ptr<document::Host>& host)
      : random_(random), host_(host) {}

  void Fill(document::Document& document) {
    document.equipment = {Text(), Text(), Text(), Text()};
    std::vector<std::shared_ptr<orvik::ITestElement>> groups{nullptr};
    for (auto left = random_() % 12; left > 0; --left) {
      const auto& parent = groups[random_() % groups.size()];
      const auto added = document.AddTest(kTests[random_() % kTests.size()], parent);
      Change(added);
      if (orvik::As<orvik::ITestContainer>(added)) groups.push_back(added);
    }
  }

 private:
  std::string Text() {
    static const std::vector<std::string> kParts{"a",        " ",  "<",   "&",  "\"",
                                                 "\xC3\xB8", "\n", "]]>", "\t", "0"};
    std::string text;
    for (auto left = random_() % 6; left > 0; --left) text += kParts[random_() % kParts.size()];
    return text;
  }

  void Change(const std::shared_ptr<orvik::ITestElement>& element) {
    sample::SetOptions(element, static_cast<std::int32_t>(random_() % 8192));
    element->Information()->SetFirstText(Text());
    if (random_() % 2) element->Information()->SetSecondText(Text());
    element->Information()->SetDisplayName(Text());
    const auto base = host_->Elements()->BaseOf(element);
    base->Auxiliary()->SetPrintElement(random_() % 2 == 0);
    if (random_() % 2) {
      const auto result = std::make_shared<sample::SampleResult>();
      result->lStatus = static_cast<std::int32_t>(random_() % 5);
      result->SetComment(Text());
      base->SetResult(result);
    }
    for (auto left = random_() % 3; left > 0; --left)
      element->Limits()
          ->CreateStandard(Text(), Text())
          ->Limit(1)
          ->SetBounds("", std::to_string(random_() % 100));
  }

  inline static const std::vector<std::int32_t> kTests{100, 110, 120, 200, 210};
  std::mt19937& random_;
  std::shared_ptr<document::Host> host_;
};

std::string Described(const std::shared_ptr<orvik::ITestElement>& element) {
  std::string text = std::to_string(element->ID()) + "/" + std::to_string(element->TestID()) + "/" +
                     element->ClassID() + "/" + element->Information()->FirstText() + "/" +
                     element->Information()->SecondText() + "/" + element->Information()->DisplayName() +
                     "/" + std::to_string(sample::Options(element)) + "/" +
                     orvik::As<sample::ISampleTest>(element)->sUnit;
  if (const auto result = element->Result())
    text += "/" + std::to_string(result->Status()) + result->Comment();
  if (const auto standards = element->Limits()->Standards()) {
    for (std::int32_t i = 1; i <= standards->Count(); ++i)
      text += "/" + standards->item(i)->Name() + standards->item(i)->Limit(1)->HighText();
  }
  if (const auto container = orvik::As<orvik::ITestContainer>(element)) {
    for (std::int32_t i = 1; i <= container->Count(); ++i) text += "(" + Described(container->item(i)) + ")";
  }
  return text;
}

std::string Described(const document::Document& document) {
  const auto& equipment = document.equipment;
  std::string text = equipment.asset + "/" + equipment.serial + "/" + equipment.maker + "/" + equipment.model;
  for (std::int32_t i = 1; i <= document.Elements()->Count(); ++i)
    text += "(" + Described(document.Elements()->item(i)) + ")";
  return text;
}

TEST_F(DocumentTest, AnyDocumentIsReadBackUnchanged) {
  std::mt19937 random(support::Seed());
  for (int round = 0; round < 100; ++round) {
    const auto name = std::to_string(round) + ".orvik";
    const auto document = New(name);
    Generator(random, host_).Fill(*document);
    document->Save();
    const auto again = Reopen(name);
    ASSERT_EQ(Described(*again), Described(*document)) << "round " << round;
    ASSERT_EQ(again->Text(), document->Text()) << "round " << round;
  }
}

TEST_F(DocumentTest, AnyDamageGivesAnErrorOrADocument) {
  std::mt19937 random(support::Seed());
  const auto document = New();
  Generator(random, host_).Fill(*document);
  document->AddTest(100);
  const auto good = document->Text();
  for (int round = 0; round < 300; ++round) {
    auto text = good;
    for (auto left = 1 + random() % 4; left > 0; --left) {
      const auto at = random() % text.size();
      switch (random() % 3) {
        case 0:
          text[at] = static_cast<char>(random() % 256);
          break;
        case 1:
          text.erase(at, 1 + random() % 20);
          break;
        default:
          text.insert(at, text.substr(random() % text.size(), random() % 20));
      }
      if (text.empty()) break;
    }
    try {
      EXPECT_FALSE(Opened(text)->Text().empty());
    } catch (const HostError& error) {
      EXPECT_TRUE(support::Holds(error.Description(), "given.orvik"));
    }
  }
}

TEST(SavedElements, HighestIdentifierCountsAtAnyDepth) {
  pugi::xml_document document;
  document.load_string("<E><TestElement ID='2'><TestElement ID='7'/></TestElement><TestElement ID='3'/></E>");
  document::SavedElements saved;
  EXPECT_EQ(saved.HighestId(), 0);
  for (const auto element : document.document_element()) saved.Check(element);
  EXPECT_EQ(saved.HighestId(), 7);
}

}  // namespace
}  // namespace host
