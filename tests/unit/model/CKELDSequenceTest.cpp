#include "OrvikTypeLib/ITestEnumerator.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/report/ReportObject.h"
#include "model/CKELDSequence.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "tests/unit/model/ModelTest.h"

namespace keld {

class CKELDSequenceTest : public support::ModelTest {
 protected:
  using Codes = std::vector<std::int32_t>;

  static Codes Ids(const orvik::ITestContainer& container) {
    Codes ids;
    const auto walk = container.NewEnum();
    while (const auto child = walk->Next()) ids.push_back(child->ID());
    return ids;
  }

  Element first = MakeTest(210, 1);
  Element deep = MakeTest(410, 3);
  Element inner = MakeSequence({deep}, 2);
  Element sequence = MakeSequence({first, inner});
  orvik::ITestContainer& children = *Container(sequence);
};

TEST_F(CKELDSequenceTest, HoldsItsChildrenInOrder) {
  EXPECT_EQ(model::CKELDSequence::Create()->Count(), 0);
  EXPECT_EQ(children.Count(), 2);
  EXPECT_EQ(children.item(1), first);
  EXPECT_EQ(first->Parent(), sequence);
  EXPECT_FALSE(children.item(0));
  EXPECT_FALSE(children.item(3));
  children.Add(MakeTest(610, 4), 2, {});
  children.Add(MakeTest(710, 5), {}, 1);
  EXPECT_EQ(Ids(children), (Codes{1, 5, 4, 2}));
  EXPECT_EQ(children.FindElement(3), deep) << "at any depth";
  EXPECT_FALSE(children.FindElement(9));
  children.Remove(nullptr);
  children.Remove(first);
  EXPECT_EQ(Ids(children), (Codes{5, 4, 2}));
}

TEST_F(CKELDSequenceTest, LogsAnElementThatCannotBeAdded) {
  children.Add(nullptr, {}, {});
  children.Add(sequence, {}, {});
  EXPECT_EQ(children.Count(), 2);
  EXPECT_FALSE(sequence->Parent());
  const auto lines = bench.Only().ErrorLines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_NE(lines[0].find("KELD(IN)"), std::string::npos);
  EXPECT_NE(lines[0].find("CKELDSequence"), std::string::npos);
}

TEST_F(CKELDSequenceTest, KeepsItsOptionsWhenInitialised) {
  for (const std::int32_t id : {100, 920, 1100, 1120}) {
    const auto created = model::CKELDSequence::Create();
    created->Initialize("KELD(IN)", 1, id);
    EXPECT_EQ(created->TestID(), id);
    EXPECT_EQ(Configuration(created).Options(), 3) << id;
  }
}

TEST_F(CKELDSequenceTest, IsClonedWithItsChildren) {
  const auto clone = sequence->Clone();
  ASSERT_TRUE(orvik::As<model::CKELDSequence>(clone));
  ASSERT_EQ(Container(clone)->Count(), 2);
  EXPECT_EQ(Container(clone)->item(1)->Parent(), clone);
  EXPECT_EQ(first->Parent(), sequence);
  const auto innerClone = Container(clone)->item(2);
  EXPECT_NE(innerClone, inner);
  EXPECT_EQ(Container(innerClone)->item(1)->Parent(), innerClone);
  Container(innerClone)->Remove(Container(innerClone)->item(1));
  EXPECT_EQ(Container(inner)->Count(), 1);
}

TEST_F(CKELDSequenceTest, IsSavedWithItsChildren) {
  const auto document = MKELDGlobalVars::XmlDocument();
  const auto saved = sequence->Save(document->CreateRoot("Elements"));
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->Attribute("Class"), "orvikKELD.CKELDSequence");
  EXPECT_TRUE(saved->FindChild("TestElement"));
}

TEST_F(CKELDSequenceTest, InfoIsTheBaseElements) {
  sequence->Information()->SetSecondText("Group");
  EXPECT_EQ(sequence->Info(), orvik::Variant(Texts{"::", "Group"}));
}

TEST_F(CKELDSequenceTest, IsNotPrintedWithoutAResult) {
  const auto report = std::make_shared<host::report::ReportObject>();
  sequence->PrintReport(report, nullptr);
  EXPECT_TRUE(report->Tables().empty());
}

TEST_F(CKELDSequenceTest, RaisesNothingWithoutItsContainer) {
  bench.Host().Register(orvik::HostClasses::kTestContainer, [] { return nullptr; });
  const auto empty = model::CKELDSequence::Create();
  const auto child = MakeTest(210, 1);
  empty->Add(child, {}, {});
  empty->Remove(child);
  EXPECT_EQ(empty->Count(), 0);
  EXPECT_FALSE(empty->item(1));
  EXPECT_FALSE(empty->FindElement(1));
  EXPECT_FALSE(empty->NewEnum());
  EXPECT_FALSE(child->Parent()) << "it was not added";
}

}  // namespace keld
