#include "OrvikTypeLib/IServiceRecord.h"
#include "results/CKELDResultData.h"
#include "tests/unit/results/ServiceRecordProbe.h"
#include "tests/unit/results/Tools.h"

// How a result is written to and read from the host's documents.
namespace {

using keld::results::CKELDResultData;

using CKELDResultDataStorageTest = results::ResultsTest;

TEST_F(CKELDResultDataStorageTest, SavesTheChildrenInTheirOrder) {
  const auto element = Test(1);
  const auto result = GiveResult(*element, 1);
  result->SetMTIIdentifier(3);
  result->SetComment("worn lead");
  result->SetMeasurement(Measurement(5.3));
  result->BuildServiceRecord(element);
  const auto parent = Node();
  const auto saved = result->Save(parent);
  EXPECT_EQ(saved->Name(), "ResultItem");
  EXPECT_EQ(ChildNames(*parent), (std::vector<std::string>{"ResultItem"}));
  EXPECT_EQ(saved->Attribute("MTI"), "3");
  EXPECT_EQ(ChildNames(*saved),
            (std::vector<std::string>{"Status", "ServiceRecord", "Comment", "Measurement"}));
  EXPECT_EQ(saved->FindChild("Status")->Text(), "1");
  EXPECT_FALSE(saved->FindChild("Status")->HasAttribute("Name"));
  EXPECT_EQ(saved->FindChild("Comment")->Text(), "worn lead");
}

TEST_F(CKELDResultDataStorageTest, OmitsMissingParts) {
  const auto saved = CKELDResultData::Create()->Save(Node());
  EXPECT_FALSE(saved->HasAttribute("MTI"));
  EXPECT_EQ(ChildNames(*saved), (std::vector<std::string>{"Status"}));
}

TEST_F(CKELDResultDataStorageTest, ServiceRecordIsMovedBelowTheResult) {
  const auto record = std::make_shared<results::ServiceRecordProbe>();
  const auto root = Node();
  record->saveBelow = root->AddChild("Elsewhere");
  const auto result = CKELDResultData::Create();
  result->SetServiceRecord(record);
  const auto saved = result->Save(root);
  EXPECT_EQ(ChildNames(*saved), (std::vector<std::string>{"Status", "ServiceRecord"}));
  EXPECT_EQ(record->saveBelow->ChildCount(), 0);
}

TEST_F(CKELDResultDataStorageTest, ServiceRecordLoadsFromItsNodeAndContext) {
  const auto record = std::make_shared<results::ServiceRecordProbe>();
  host_.Host().Register(orvik::HostClasses::kServiceRecord, [&] { return record; });
  const auto node = Parsed("<ResultItem><ServiceRecord/></ResultItem>");
  const auto context = Test(1);
  const auto result = CKELDResultData::Create();
  result->Load(node, context);
  EXPECT_EQ(result->ServiceRecord(), record);
  ASSERT_TRUE(record->loadedFrom);
  EXPECT_EQ(record->loadedFrom->Name(), "ServiceRecord");
  EXPECT_EQ(record->loadedIn, context);
}

TEST_F(CKELDResultDataStorageTest, LaterChildrenReplaceEarlierOnes) {
  const auto result = CKELDResultData::Create();
  result->Load(Parsed("<ResultItem><Status>1</Status><Comment>a</Comment><Status>2</Status>"
                      "<Comment>b</Comment></ResultItem>"),
               nullptr);
  EXPECT_EQ(result->Status(), 2);
  EXPECT_EQ(result->Comment(), "b");
}

TEST_F(CKELDResultDataStorageTest, NegativeIdentifierIsNotSaved) {
  const auto result = CKELDResultData::Create();
  result->SetMTIIdentifier(-4);
  EXPECT_FALSE(result->Save(Node())->HasAttribute("MTI"));
}

TEST_F(CKELDResultDataStorageTest, SavingWithoutAParentIsAnError) {
  EXPECT_THROW(CKELDResultData::Create()->Save(nullptr), orvik::HostError);
}

TEST_F(CKELDResultDataStorageTest, LoadsWhatWasSaved) {
  const auto element = Test(1);
  SetFilter(*element, 2);
  const auto result = GiveResult(*element, 2);
  result->SetMTIIdentifier(12);
  result->SetComment("<&>\" Ω");
  result->SetMeasurement(Measurement(5.3, "mOhm", "O"));
  result->BuildServiceRecord(element);

  const auto loaded = CKELDResultData::Create();
  loaded->Load(result->Save(Node()), nullptr);
  EXPECT_EQ(loaded->Status(), 2);
  EXPECT_EQ(loaded->MTIID(), 12);
  EXPECT_EQ(loaded->Comment(), "<&>\" Ω");
  ASSERT_TRUE(loaded->Measurement(1));
  EXPECT_EQ(loaded->Measurement(1)->value(), orvik::Variant(5.3));
  EXPECT_EQ(loaded->Measurement(1)->Unit(), "mOhm");
  EXPECT_EQ(loaded->Measurement(1)->Flags(), "O");
  ASSERT_TRUE(loaded->ServiceRecord());
  EXPECT_EQ(loaded->ServiceRecord()->Code(), "F");
  EXPECT_EQ(loaded->ServiceRecord()->Value(), "/ 5.3");
  EXPECT_EQ(loaded->ServiceRecord()->Name(), "Test 1");
}

TEST_F(CKELDResultDataStorageTest, LoadWithoutChildrenKeepsEverything) {
  const auto result = CKELDResultData::Create();
  result->SetStatus(2);
  result->SetMTIIdentifier(5);
  result->SetComment("kept");
  result->SetMeasurement(Measurement(1.0));
  result->Load(Parsed("<ResultItem><Other>1</Other></ResultItem>"), nullptr);
  EXPECT_EQ(result->Status(), 2);
  EXPECT_EQ(result->MTIID(), 5);
  EXPECT_EQ(result->Comment(), "kept");
  EXPECT_EQ(result->MeasurementCount(), 1);
}

TEST_F(CKELDResultDataStorageTest, LoadRoundsTheIdentifier) {
  const auto loaded = [&](const std::string& identifier) {
    const auto result = CKELDResultData::Create();
    result->SetMTIIdentifier(9);
    result->Load(Parsed("<ResultItem MTI=\"" + identifier + "\"/>"), nullptr);
    return result->MTIID();
  };
  EXPECT_EQ(loaded("3"), 3);
  EXPECT_EQ(loaded("3.6"), 4);
  EXPECT_EQ(loaded("2.5"), 2);
  EXPECT_EQ(loaded(" 7 of 9"), 7);
  EXPECT_EQ(loaded("none"), 0);
  EXPECT_EQ(loaded(""), 9);
}

TEST_F(CKELDResultDataStorageTest, LoadMatchesTagsExactly) {
  const auto result = CKELDResultData::Create();
  result->Load(Parsed("<ResultItem><status>1</status><comment>x</comment></ResultItem>"), nullptr);
  EXPECT_EQ(result->Status(), 0);
  EXPECT_EQ(result->Comment(), "");
}

TEST_F(CKELDResultDataStorageTest, LoadPropagatesTheHostsError) {
  const auto result = CKELDResultData::Create();
  EXPECT_THROW(result->Load(Parsed("<ResultItem><Status>passed</Status></ResultItem>"), nullptr),
               orvik::HostError);
  EXPECT_EQ(result->Status(), 0);
  EXPECT_THROW(result->Load(nullptr, nullptr), orvik::HostError);
}

}  // namespace
