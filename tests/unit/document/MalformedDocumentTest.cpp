#include "host/document/Document.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;

struct DocumentFault {
  const char* text;
  const char* complaint;
};

class MalformedDocument : public support::HostFixture, public ::testing::WithParamInterface<DocumentFault> {};

TEST_P(MalformedDocument, IsRejectedWithReasonAndNotChanged) {
  folder_.Write("given.orvik", GetParam().text);
  const auto text = support::ErrorText([&] {
    document::Document::Open(host_, folder_.Path() / "given.orvik", document::DocumentFile::Use::kRead);
  });
  EXPECT_TRUE(support::Holds(text, "given.orvik"));
  EXPECT_TRUE(support::Holds(text, GetParam().complaint));
  EXPECT_EQ(folder_.Read("given.orvik"), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MalformedDocument,
    ::testing::Values(
        DocumentFault{"<OrvikDocument Version='1'>\n<Equipment Asset='\xE6'/></OrvikDocument>",
                      "line 2: there are bytes that are not UTF-8 text"},
        DocumentFault{"<?xml version='1.0' encoding='koi8-r'?>\n<OrvikDocument Version='1'/>",
                      "line 1: the file is declared as \"koi8-r\""},
        DocumentFault{"<?xml version='1.0' encoding='UTF-16'?>\n<OrvikDocument Version='1'/>",
                      "line 1: the file is declared as \"UTF-16\""},
        DocumentFault{"<?xml version='1.0' encoding='windows-1252'?>\n<OrvikDocument Version='1' A='\x81'/>",
                      "line 2: there are bytes that are not text in the encoding"},
        DocumentFault{"", "no root element"}, DocumentFault{"no xml", "line 1"},
        DocumentFault{"<OrvikDocument Version='1'>\n<Elements>\n", "line 2"},
        DocumentFault{"<OrvikDocument Version='1'>\n</OrvikDocument>\ntrailing", "line 3"},
        DocumentFault{"<OrvikDocument Version='1'>\n</OrvikDocument>\n&#0;",
                      "line 3: the reference stands for no character"},
        DocumentFault{
            "<!-- &#0; -->\n<OrvikDocument Version='1'>\n<Equipment Serial='4&#x00;2'/></OrvikDocument>",
            "line 3: the reference stands for no character"},
        DocumentFault{"<OrvikDocument Version='1'>\n<Equipment Serial='4&#4294967296;'/></OrvikDocument>",
                      "line 2: the reference stands for no character"},
        DocumentFault{"<OrvikDocument Version='1'>\n<Equipment Serial='&#xDfFf;'/></OrvikDocument>",
                      "line 2: the reference stands for no character"},
        DocumentFault{"<OrvikDocument Version='1'>\n<Equipment Serial='&#x110000;'/></OrvikDocument>",
                      "line 2: the reference stands for no character"},
        DocumentFault{"<OrvikDocument Version='1'>\n<Elements>\n  <TestElement ID='1' TestID='110'>\n"
                      "    <Information DisplayName='Fan&#0; of the pump'/>\n  </TestElement>\n</Elements>\n"
                      "</OrvikDocument>",
                      "line 4: the reference stands for no character"},
        DocumentFault{"<Other Version='1'/>", "line 1: this is no test document"},
        DocumentFault{"<OrvikDocument/>", "\"Version\" of \"OrvikDocument\" is not a whole number"},
        DocumentFault{"<OrvikDocument Version='one'/>", "is not a whole number"},
        DocumentFault{"<OrvikDocument Version='2'/>", "newer version of this program (format 2"},
        DocumentFault{"<OrvikDocument Version='0'/>", "no document format 0"},
        DocumentFault{"<OrvikDocument Version='1'>\n<Elements>\n<TestElement/></Elements></OrvikDocument>",
                      "line 3: the attribute \"ID\" of \"TestElement\""},
        DocumentFault{"<OrvikDocument Version='1'><Elements>\n<TestElement ID='0' TestID='110'/>"
                      "</Elements></OrvikDocument>",
                      "line 2: the identifier 0 is below 1"},
        DocumentFault{
            "<OrvikDocument Version='1'><Elements><TestElement ID='5' TestID='110' PlugInID='SAMPLE'/>\n"
            "<TestElement ID='6' TestID='1' PlugInID='GONE'>\n<TestElement ID='5' TestID='1'/></TestElement>"
            "</Elements></OrvikDocument>",
            "line 3: the identifier 5 is used twice"},
        DocumentFault{"<OrvikDocument Version='1'><Elements>\n<TestElement ID='1' TestID='x'/>"
                      "</Elements></OrvikDocument>",
                      "line 2: the attribute \"TestID\""},
        DocumentFault{
            "<OrvikDocument Version='1'><Elements><TestElement ID='1' TestID='100' PlugInID='SAMPLE' "
            "Class='sample.Sequence'>\n<TestElement ID='2' "
            "TestID='x'/></TestElement></Elements></OrvikDocument>",
            "line 2: the attribute \"TestID\""},
        DocumentFault{
            "<OrvikDocument Version='1'><Elements><TestElement ID='1' TestID='110' PlugInID='SAMPLE' "
            "Class='sample.Element'>\n<ResultItem><Status>passed</Status></ResultItem></TestElement>"
            "</Elements></OrvikDocument>",
            "line 2: the status is not a number"},
        DocumentFault{
            "<OrvikDocument Version='1'><Elements><TestElement ID='1' TestID='110' PlugInID='SAMPLE' "
            "Class='sample.Element'><ExpectedResult>\n<Standard>\n<Limit High='110%'/></Standard>"
            "</ExpectedResult></TestElement></Elements></OrvikDocument>",
            "line 3: a bound in percent"},
        DocumentFault{
            "<OrvikDocument Version='1'>\n<Standards><Standard Number='x'/></Standards></OrvikDocument>",
            "line 2"},
        DocumentFault{"<OrvikDocument Version='1'>\n<Instruments><Instrument/></Instruments></OrvikDocument>",
                      "line 2"}));

}  // namespace
}  // namespace host
