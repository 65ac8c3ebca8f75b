#include <gmock/gmock.h>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "host/document/Document.h"
#include "host/elements/AuxiliaryState.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"

namespace host {
namespace {

using support::ErrorText;
using support::Holds;
using testing::ElementsAre;

class DocumentEditTest : public support::HostFixture {
 protected:
  DocumentEditTest() : document_(document::Document::Create(host_, folder_.Path() / "a.orvik")) {}

  std::shared_ptr<document::Document> Opened(const std::string& text) {
    folder_.Write("given.orvik", text);
    return document::Document::Open(host_, folder_.Path() / "given.orvik",
                                    document::DocumentFile::Use::kRead);
  }
  /// The identifiers at the top of the document, or in the sequence.
  static std::vector<std::int32_t> Order(const std::shared_ptr<orvik::ITestContainer>& container) {
    std::vector<std::int32_t> order;
    for (std::int32_t i = 1; i <= container->Count(); ++i) order.push_back(container->item(i)->ID());
    return order;
  }
  std::vector<std::int32_t> Order() const { return Order(document_->Elements()); }
  std::shared_ptr<orvik::ITestElement> At(std::int32_t id) const { return document_->Find(id); }

  std::shared_ptr<document::Document> document_;
};

TEST_F(DocumentEditTest, AddsBeforeAndAfterANeighbour) {
  document_->AddTest(110);
  document_->AddTest(110);
  EXPECT_EQ(document_->AddTest(110, document::ElementPlace::Before(*At(2)))->ID(), 3);
  EXPECT_EQ(document_->AddTest(110, document::ElementPlace::After(*At(1)))->ID(), 4);
  EXPECT_THAT(Order(), ElementsAre(1, 4, 3, 2));
}

TEST_F(DocumentEditTest, AddsBesideAChildOfASequence) {
  const auto group = document_->AddTest(200);
  const auto child = In(group)->item(1)->ID();
  const auto added = document_->AddTest(110, document::ElementPlace::Before(*At(child)));
  EXPECT_EQ(added->Parent(), group);
  EXPECT_THAT(Order(In(group)), ElementsAre(added->ID(), child));
}

TEST_F(DocumentEditTest, MovesAmongNeighboursAndIntoASequence) {
  const auto group = document_->AddTest(200);  // 1, with 2 in it
  for (int i = 0; i < 3; ++i) document_->AddTest(110);
  document_->Move(At(5), document::ElementPlace::Before(*At(1)));
  EXPECT_THAT(Order(), ElementsAre(5, 1, 3, 4));
  document_->Move(At(5), document::ElementPlace::After(*At(3)));
  EXPECT_THAT(Order(), ElementsAre(1, 3, 5, 4));
  document_->Move(At(1), document::ElementPlace::AtEndOf(nullptr));
  EXPECT_THAT(Order(), ElementsAre(3, 5, 4, 1));
  document_->Move(At(3), document::ElementPlace::After(*At(2)));
  EXPECT_THAT(Order(), ElementsAre(5, 4, 1));
  EXPECT_THAT(Order(In(group)), ElementsAre(2, 3));
  EXPECT_EQ(At(3)->Parent(), group);
}

TEST_F(DocumentEditTest, RefusesAPlaceInsideOrBesideTheElementItself) {
  const auto group = document_->AddTest(200);
  const auto order = document_->Text();
  EXPECT_TRUE(support::Holds(
      support::ErrorText([&] { document_->Move(group, document::ElementPlace::After(*At(2))); }),
      "element 1 cannot be placed inside itself"));
  EXPECT_TRUE(support::Holds(
      support::ErrorText([&] { document_->Move(group, document::ElementPlace::AtEndOf(group)); }),
      "element 1 cannot be placed inside itself"));
  EXPECT_TRUE(support::Holds(
      support::ErrorText([&] { document_->Move(group, document::ElementPlace::Before(*group)); }),
      "element 1 cannot be placed beside itself"));
  EXPECT_EQ(document_->Text(), order);
}

TEST_F(DocumentEditTest, RemovesWithAllBelow) {
  document_->AddTest(200);
  document_->AddTest(110);
  document_->Remove(At(1));
  EXPECT_THAT(Order(), ElementsAre(3));
  EXPECT_EQ(At(2), nullptr);
  EXPECT_EQ(document_->AddTest(110)->ID(), 4) << "the identifier of a removed element was given again";
}

TEST_F(DocumentEditTest, NeverReusesAnIdentifierOfARecord) {
  const std::string runs =
      "<Runs><Run Number='1' Simulated='0' TimeScale='1'><Takes Elements='1 7'/></Run>"
      "<Run Number='2' Simulated='0' TimeScale='1'><Takes Elements='6'/></Run></Runs>";
  const std::string element = "<TestElement ID='2' TestID='110' PlugInID='SAMPLE'/>";
  for (const auto& elements : {"<Elements>" + element + "</Elements>", std::string()}) {
    const auto document = Opened("<OrvikDocument Version='1'>" + elements + runs + "</OrvikDocument>");
    EXPECT_EQ(document->AddTest(110)->ID(), 8) << elements;
  }
}

TEST_F(DocumentEditTest, SavesTheCommentApartFromTheEquipment) {
  EXPECT_EQ(document_->Text().find("Comment"), std::string::npos);
  const auto equipment = document_->equipment;
  document_->comment = "<1 & 2>";
  EXPECT_EQ(document_->equipment, equipment);
  const auto again = Opened(document_->Text());
  EXPECT_EQ(again->comment, "<1 & 2>");
  EXPECT_EQ(again->Text(), document_->Text());
}

TEST_F(DocumentEditTest, CopiesAPlanWithoutResults) {
  const auto other = Opened(
      "<OrvikDocument Version='1'><Equipment Asset='A'/><Elements>"
      "<TestElement ID='9' TestID='200' PlugInID='SAMPLE' Class='Sample.Sequence' Seen='1'>"
      "<Information DisplayName='Mine'/>"
      "<Auxiliary Print='0' RecordOnly='1'><Doubt>d</Doubt><Run Date='2026-01-02' "
      "Operator='Kim'/></Auxiliary>"
      "<Photo/><TestElement ID='3' TestID='110' PlugInID='SAMPLE'/></TestElement>"
      "<TestElement ID='8' TestID='1' PlugInID='GONE' "
      "Class='gone.X'><ResultItem><Status>1</Status></ResultItem>"
      "<TestElement ID='41' TestID='1'><ResultItem/></TestElement></TestElement>"
      "</Elements></OrvikDocument>");
  document_->AddPlanOf(*other);
  document_->AddTest(110);
  EXPECT_THAT(Order(), ElementsAre(1, 3, 5));
  EXPECT_EQ(document_->equipment, document::Document::Equipment());
  const auto text = document_->Text();
  for (const auto* planned : {"DisplayName=\"Mine\"", "<Auxiliary Print=\"0\" RecordOnly=\"1\" />",
                              "<TestElement ID=\"4\" TestID=\"1\"", "PlugInID=\"GONE\""})
    EXPECT_TRUE(support::Holds(text, planned));
  for (const auto* past : {"ResultItem", "Doubt", "Kim", "Photo", "Seen"})
    EXPECT_EQ(text.find(past), std::string::npos) << past << " is in\n" << text;
}

}  // namespace
}  // namespace host
