#include <algorithm>
#include <random>

#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "host/document/Document.h"
#include "host/document/DocumentCheck.h"
#include "host/elements/Nesting.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"
#include "tests/support/Seed.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;

/// What is wrong, and the notes, a line each: "LINE:COLUMN text".
struct Told {
  std::vector<std::string> wrong, notes;
};

class DocumentCheckTest : public support::HostFixture {
 protected:
  Told Check(const std::string& text) {
    Told told;
    for (const auto& found : document::CheckDocument(text, *host_->Elements()))
      (found.wrong ? told.wrong : told.notes)
          .push_back(std::to_string(found.line) + ":" + std::to_string(found.column) + " " + found.text);
    return told;
  }
  /// A document with these elements, which begin in line 2, column 1.
  static std::string With(const std::string& elements) {
    return "<OrvikDocument Version='1'><Instruments><Instrument Index='1'/></Instruments><Elements>\n" +
           elements + "</Elements></OrvikDocument>";
  }
  static std::string Test(const std::string& id, const std::string& inside = "") {
    return "<TestElement ID='" + id + "' TestID='110' PlugInID='SAMPLE' Class='sample.Element'>" + inside +
           "</TestElement>";
  }
  static std::string Group(const std::string& id, const std::string& inside) {
    return "<TestElement ID='" + id + "' TestID='100' PlugInID='SAMPLE' Class='sample.Sequence'>" + inside +
           "</TestElement>";
  }
};

TEST_F(DocumentCheckTest, FindsNothingInASavedDocument) {
  const auto document = document::Document::Create(host_, folder_.Path() / "a.orvik");
  document->AddTest(100);
  document->Find(2)->Limits()->CreateStandard("S", "")->Limit(1)->SetBounds("1", "2");
  const auto told = Check(document->Text());
  EXPECT_EQ(told.wrong, std::vector<std::string>{});
  EXPECT_EQ(told.notes, std::vector<std::string>{});
}

TEST_F(DocumentCheckTest, ReportsEveryProblem) {
  const auto told = Check(With(Test("1") + "\n" + Test("1") + "\n  " +
                               Test("x", "<ResultItem><Status>7</Status></ResultItem>") + "\n" +
                               Group("3", "\n" + Test("4",
                                                      "<ExpectedResult><Standard Name='S'>\n"
                                                      "<Limit Key='NO LIMIT KEY' Unit='V' High='abc'/>"
                                                      "</Standard></ExpectedResult>"))));
  EXPECT_EQ(told.wrong.size(), 4U);
  ASSERT_GE(told.wrong.size(), 4U);
  EXPECT_EQ(told.wrong[0], "3:1 the identifier 1 is used twice; first in line 2");
  EXPECT_EQ(told.wrong[1], "4:3 the identifier \"x\" is no whole number from 1 on");
  EXPECT_TRUE(support::Holds(told.wrong[2], "the status \"7\" is not one of"));
  EXPECT_TRUE(support::Holds(told.wrong[3], "7:1 the bound \"abc\" is not a number"));
}

struct Fault {
  const char* name;
  std::string text;
  const char* told;
};

class FaultyDocument : public DocumentCheckTest, public testing::WithParamInterface<Fault> {
 public:
  static std::vector<Fault> All() {
    const auto result = [](const std::string& inside) {
      return With(Test("1", "<ResultItem" + inside + "</ResultItem>"));
    };
    const auto limit = [](const std::string& attributes) {
      return With(Test(
          "1", "<ExpectedResult><Standard Name='S'><Limit " + attributes + "/></Standard></ExpectedResult>"));
    };
    const std::string judging = "Key='NO LIMIT KEY' Unit='V' ";
    return {
        {"CutShort", With(Test("1")).substr(0, 200), "2:"},
        {"Mismatch", "<OrvikDocument Version='1'>\n<Elements>\n</OrvikDocument>", "3:3 "},
        {"Empty", "", "1:1 "},
        {"TextOutside", "<OrvikDocument Version='1'/>\n  x", "2:3 there is text outside"},
        {"AnotherKind", "<Other/>", "1:1 this is no test document"},
        {"NewerVersion", "<OrvikDocument Version='2'/>", "1:1 the document was written by a newer version"},
        {"NoVersion", "<OrvikDocument/>", "1:1 the attribute \"Version\""},
        {"VersionZero", "<OrvikDocument Version='0'/>", "1:1 there is no document format 0"},
        {"NotUtf8", "<OrvikDocument Version='1'>\n <Equipment Asset='\xE6'/></OrvikDocument>",
         "2:20 there are bytes that are not UTF-8"},
        {"UnknownEncoding", "<?xml version='1.0' encoding='EBCDIC'?><OrvikDocument Version='1'/>",
         "1:31 the file is declared as \"EBCDIC\""},
        {"NotInItsEncoding",
         "<?xml version='1.0' encoding='windows-1252'?>\n<OrvikDocument Version='1' A='\x81'/>",
         "2:31 there are bytes that are not text in the encoding"},
        {"SecondSection", "<OrvikDocument Version='1'><Elements/>\n<Elements/></OrvikDocument>",
         "2:1 there is a second \"Elements\"; the first is in line 1"},
        {"ElementOutside", "<OrvikDocument Version='1'>\n" + Test("1") + "</OrvikDocument>",
         "2:1 the element stands outside \"Elements\""},
        {"NoIdentifier", With("<TestElement TestID='110' PlugInID='SAMPLE' Class='sample.Element'/>"),
         "2:1 the element has no identifier"},
        {"AttributeTwice",
         With("<TestElement ID='1' TestID='110' TestID='120' PlugInID='SAMPLE' Class='sample.Element'/>"),
         "2:1 the attribute \"TestID\" stands twice"},
        {"AssetTwice", "<OrvikDocument Version='1'>\n<Equipment Asset='1' Asset='2'/></OrvikDocument>",
         "2:1 the attribute \"Asset\" stands twice"},
        {"UnitWithoutValue",
         With(Test("1", "<ResultItem>\n<Measurement><Value/><Unit>V</Unit></Measurement></ResultItem>")),
         "3:1 the reading has a unit and no value"},
        {"IdentifierZero", With(Test("0")), "2:1 the identifier \"0\""},
        {"NestedTwice", With(Group("1", "\n" + Test("1"))), "3:1 the identifier 1 is used twice"},
        {"ParentNoSequence", With(Test("1", "\n" + Test("2"))),
         "3:1 element 2 stands below element 1, which is no sequence"},
        {"NoTest", With("<TestElement ID='1' PlugInID='SAMPLE' Class='sample.Element'/>"),
         "2:1 element 1: it names no test"},
        {"TestNoNumber", With("<TestElement ID='1' TestID='x' PlugInID='SAMPLE' Class='sample.Element'/>"),
         "2:1 element 1: the test \"x\" is no whole number"},
        {"NotInCatalogue",
         With("<TestElement ID='1' TestID='111' PlugInID='SAMPLE' Class='sample.Element'/>"),
         "2:1 element 1: the catalogue has no test 111"},
        {"PlugInGone",
         With("<TestElement ID='1' TestID='110' PlugInID='GONE' "
              "Class='gone.Element'><ResultItem/></TestElement>"),
         "2:1 element 1: its plug-in \"GONE\" is missing; nobody can read its result"},
        {"ClassUnknown",
         With("<TestElement ID='1' TestID='110' PlugInID='SAMPLE' "
              "Class='sample.X'><ResultItem/></TestElement>"),
         "2:1 element 1: its class \"sample.X\" is not known; nobody can read its result"},
        {"OtherClass", With("<TestElement ID='1' TestID='110' PlugInID='SAMPLE' Class='sample.Sequence'/>"),
         "2:1 element 1: it is of the class \"sample.Sequence\", the catalogue's test 110 of"},
        {"SecondResult", With(Test("1", "<ResultItem/>\n<ResultItem/>")),
         "3:1 element 1 has a second \"ResultItem\"; the first is in line 2"},
        {"StatusTooHigh", result("><Status>5</Status>"), "the status \"5\" is not one of"},
        {"StatusNegative", result("><Status>-1</Status>"), "the status \"-1\" is not one of"},
        {"StatusNoNumber", result("><Status>passed</Status>"), "the status \"passed\" is not one of"},
        {"MeasurementStatus", result("><Measurement>\n<Status>9</Status></Measurement>"),
         "3:1 the status \"9\" is not one of"},
        {"ValueNoNumber", result("><Measurement>\n<Value>OL</Value></Measurement>"),
         "3:1 the value \"OL\" is no number"},
        {"TesterUnknown", result(" MTI='2'>"), "the result names the tester 2, which the document does not"},
        {"BoundNoNumber", limit(judging + "Low='1,5'"), "the bound \"1,5\" is not a number"},
        {"BoundsCrossed", limit(judging + "Low='2' High='1'"), "the lower bound is above the upper bound"},
        {"BoundInPercent", limit(judging + "High='110%'"), "a bound in percent needs a nominal value"},
        {"BoundUnit", limit("Key='NO LIMIT KEY' Unit='Ohm' High='1'"),
         "the bounds are in Ohm, but the element is recorded in V"},
        {"BoundWithoutUnit", limit("Key='NO LIMIT KEY' High='1'"),
         "the limit names no unit; readings of the element are recorded in V"},
        {"LimitKey", limit("Key='OTHER' Unit='V' High='1'"),
         "the limit has the key \"OTHER\"; the plug-in judges by limits with the key"},
        {"StandardTwice",
         With(Test("1", "<ExpectedResult><Standard Name='S'/>\n<Standard Name='S'/></ExpectedResult>")),
         "3:1 the standard \"S\" is there already, in line 2; only that one judges"},
        {"StandardNumber",
         "<OrvikDocument Version='1'><Standards>\n<Standard Number='x'/></Standards></OrvikDocument>",
         "2:1 the standard's \"Number\" is no whole number"},
        {"InstrumentIndex",
         "<OrvikDocument Version='1'><Instruments>\n<Instrument/></Instruments></OrvikDocument>",
         "2:1 the tester's \"Index\""},
        {"InstrumentTwice",
         "<OrvikDocument Version='1'><Instruments><Instrument Index='1'/>\n<Instrument Index='1'/>"
         "</Instruments></OrvikDocument>",
         "2:1 the index 1 is used for two testers"},
    };
  }
};

TEST_P(FaultyDocument, IsReportedAloneWithItsPlace) {
  const auto told = Check(GetParam().text);
  ASSERT_EQ(told.wrong.size(), 1U) << (told.wrong.empty() ? "" : told.wrong.back());
  EXPECT_TRUE(support::Holds(told.wrong[0], GetParam().told));
}

INSTANTIATE_TEST_SUITE_P(Table, FaultyDocument, testing::ValuesIn(FaultyDocument::All()),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(DocumentCheckTest, BytesThatAreNotUtf8AreReportedOnceALine) {
  const auto told =
      Check("<OrvikDocument Version='1'>\n<Equipment Asset='\xE6\xE6'\n Serial='\xE6'/></OrvikDocument>");
  ASSERT_EQ(told.wrong.size(), 2U);
  EXPECT_TRUE(support::Holds(told.wrong[0], "2:19 there are bytes that are not UTF-8"));
  EXPECT_TRUE(support::Holds(told.wrong[1], "3:10 there are bytes that are not UTF-8"));
}

TEST_F(DocumentCheckTest, ReportsAnotherEncodingAsANote) {
  const auto told = Check(
      "<?xml version='1.0' encoding='iso-8859-1'?>\n"
      "<OrvikDocument Version='1'><Equipment Asset='\xE6'/></OrvikDocument>");
  EXPECT_EQ(told.wrong, std::vector<std::string>{});
  EXPECT_EQ(told.notes,
            std::vector<std::string>{"1:1 the file is in the encoding \"iso-8859-1\"; saving writes UTF-8"});
}

TEST_F(DocumentCheckTest, ReportsUnknownXmlAsANote) {
  const auto told = Check(
      "<OrvikDocument Version='1' Extra='e'>\n<Equipment Room='r'/>\n<Signature/>\n<Elements>" +
      Test("1",
           "\n<Photo><Deep/></Photo><Configuration><PlugInData><Own x='1'/></PlugInData></Configuration>") +
      "</Elements></OrvikDocument>");
  EXPECT_EQ(told.wrong, std::vector<std::string>{});
  EXPECT_EQ(told.notes, (std::vector<std::string>{
                            "1:1 the attribute \"Extra\" of \"OrvikDocument\" is not known; it is kept",
                            "2:1 the attribute \"Room\" of \"Equipment\" is not known; it is kept",
                            "3:1 the element \"Signature\" is not known; it is kept",
                            "5:1 the element \"Photo\" is not known; it is kept"}));
}

TEST_F(DocumentCheckTest, KnowsTheMarksOfAnElement) {
  const auto told = Check(With(Test("1", "<Auxiliary Print='0' RecordOnly='1'/>")));
  EXPECT_EQ(told.wrong, std::vector<std::string>{});
  EXPECT_EQ(told.notes, std::vector<std::string>{});
}

TEST_F(DocumentCheckTest, AlsoChecksXmlBeforeAFault) {
  const auto told = Check(With(Test("1") + "\n" + Test("1") + "\n<TestElement TestID='110'\n"));
  ASSERT_EQ(told.wrong.size(), 2U);
  EXPECT_TRUE(support::Holds(told.wrong[0], "3:1 the identifier 1 is used twice"));
  EXPECT_TRUE(support::Holds(told.wrong[1], "nothing behind this place could be looked at"));
}

TEST_F(DocumentCheckTest, ReportsTooDeepNestingOnce) {
  std::string text;
  for (int level = 1; level <= 5000; ++level)
    text += "<TestElement ID='" + std::to_string(level) +
            "' TestID='100' PlugInID='SAMPLE' Class='sample.Sequence'>";
  for (int level = 1; level <= 5000; ++level) text += "</TestElement>";
  const auto told = Check(With(text));
  ASSERT_EQ(told.wrong.size(), 1U);
  EXPECT_TRUE(support::Holds(told.wrong[0], "nested more than " + std::to_string(elements::kDeepestNesting)));
}

TEST_F(DocumentCheckTest, ADocumentWithoutProblemsCanBeOpened) {
  std::mt19937 random(support::Seed());
  const auto document = document::Document::Create(host_, folder_.Path() / "a.orvik");
  document->AddTest(100);
  document->Find(2)->Limits()->CreateStandard("S", "")->Limit(1)->SetBounds("1", "2");
  const auto good = document->Text();
  int opened = 0;
  for (int round = 0; round < 400; ++round) {
    auto text = good;
    const auto at = random() % text.size();
    if (random() % 2)
      text[at] = "0x<>'\"/ =A\xC3"[random() % 11];
    else
      text.erase(at, 1 + random() % 12);
    const bool wrong = !Check(text).wrong.empty();
    folder_.Write("b.orvik", text);
    const auto refusal = support::ErrorText([&] {
      document::Document::Open(host_, folder_.Path() / "b.orvik", document::DocumentFile::Use::kRead);
    });
    if (refusal.empty()) ++opened;
    EXPECT_TRUE(wrong || refusal.empty()) << refusal << "\nfor\n" << text;
  }
  EXPECT_GT(opened, 0);
}

}  // namespace
}  // namespace host
