#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/report/ReportObject.h"
#include "host/report/TextTable.h"
#include "host/standards/StandardColl.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"

namespace host {
namespace {

using orvik::HostError;
using support::ErrorNumber;
using support::Holds;

class StandardCollTest : public support::HostFixture {
 protected:
  std::shared_ptr<orvik::IStandardColl> Coll() {
    return Make<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
  }
  std::shared_ptr<orvik::IStandard> Standard(const std::string& name, const std::string& description,
                                             const std::string& low = "", const std::string& high = "",
                                             const std::string& key = "NO LIMIT KEY") {
    auto standard = Make<orvik::IStandard>(orvik::HostClasses::kStandard);
    standard->Initialize(name, description, 1);
    const auto limit = Make<orvik::ILimit>(orvik::HostClasses::kLimit);
    limit->Initialize(key, "mA", low, high);
    standard->AddLimit(limit);
    return standard;
  }
};

TEST_F(StandardCollTest, CountsFromOneInTheOrderOfAdding) {
  const auto coll = Coll();
  const auto first = Standard("a", "");
  const auto second = Standard("b", "");
  coll->Add(first);
  coll->Add(second);
  EXPECT_EQ(coll->Count(), 2);
  EXPECT_EQ(coll->item(1), first);
  EXPECT_EQ(coll->item(2), second);
  for (const std::int32_t index : {0, 3, -1})
    EXPECT_EQ(support::ErrorNumber([&] { coll->item(index); }), HostError::kSubscriptOutOfRange);
}

TEST_F(StandardCollTest, FindsByBothTexts) {
  const auto coll = Coll();
  const auto wanted = Standard("IEC", "class I");
  coll->Add(Standard("IEC", "class II"));
  coll->Add(wanted);
  coll->Add(Standard("IEC", "class I"));
  EXPECT_EQ(coll->Find("IEC", "class I"), wanted);
  EXPECT_EQ(coll->Find("IEC", ""), nullptr);
  EXPECT_EQ(coll->Find("iec", "class I"), nullptr);
}

TEST_F(StandardCollTest, RemovesAStandardAndIgnoresOthers) {
  const auto coll = Coll();
  const auto first = Standard("a", "");
  coll->Add(first);
  coll->Remove(Standard("a", ""));
  coll->Remove(nullptr);
  EXPECT_EQ(coll->Count(), 1);
  coll->Remove(first);
  EXPECT_EQ(coll->Count(), 0);
}

TEST_F(StandardCollTest, RejectsAnEmptyStandard) {
  const auto coll = Coll();
  EXPECT_EQ(support::ErrorNumber([&] { coll->Add(nullptr); }), HostError::kTypeMismatch);
  EXPECT_EQ(coll->Count(), 0);
}

TEST_F(StandardCollTest, CloneIsDeep) {
  const auto coll = Coll();
  coll->Add(Standard("a", "", "1", "2"));
  const auto copy = coll->Clone();
  copy->Add(Standard("b", ""));
  copy->item(1)->Limit(1)->SetBounds("", "");
  EXPECT_EQ(coll->Count(), 1);
  EXPECT_EQ(coll->item(1)->Limit(1)->LowText(), "1");
}

TEST_F(StandardCollTest, SavedCollectionReadsBackWithWhatOthersAdded) {
  const std::string text =
      "<r><Standards More=\"1\"><Standard Name=\"a\" Description=\"d\" Number=\"1\" X=\"2\">"
      "<Limit Key=\"k\" Unit=\"V\" Low=\"1\" High=\"2\" Y=\"3\" /><Note>n</Note></Standard><Other "
      "/></Standards></r>";
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString(text));
  const auto coll = Coll();
  coll->Load(document.Root()->FirstChild(), nullptr);
  EXPECT_EQ(coll->Count(), 1);
  xml::XmlDocument copy;
  const auto saved = coll->Save(copy.CreateRoot("r"));
  EXPECT_EQ(saved->Name(), "Standards");
  EXPECT_EQ(copy.SaveToString(), document.SaveToString());
  EXPECT_EQ(coll->Clone()->Count(), 1);
}

TEST_F(StandardCollTest, LoadReadsFromANodeOfAnyName) {
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString("<ExpectedResult><Standard Name='a'/></ExpectedResult>"));
  const auto coll = Coll();
  coll->Load(document.Root(), nullptr);
  EXPECT_EQ(coll->Count(), 1);
  coll->Load(document.Root(), nullptr);
  EXPECT_EQ(coll->Count(), 2) << "a load adds";
}

TEST_F(StandardCollTest, RejectsMalformedStandards) {
  for (const auto* text :
       {"<S><Standard Number='x'/></S>", "<S><Standard><Limit High='abc'/></Standard></S>"}) {
    xml::XmlDocument document;
    ASSERT_TRUE(document.LoadFromString(text));
    EXPECT_NE(support::ErrorNumber([&] { Coll()->Load(document.Root(), nullptr); }), 0) << text;
  }
}

TEST_F(StandardCollTest, PrintsTheLimitsOfTheKey) {
  const auto coll = Coll();
  coll->Add(Standard("IEC|62353", "class I; BF", "", "300"));
  coll->Add(Standard("other", "", "1", "2", "OTHER KEY"));
  const auto report = std::make_shared<report::ReportObject>();
  coll->Print(report, nullptr, {"NO LIMIT KEY", "Test {Limits}", "0"});
  ASSERT_EQ(report->Tables().size(), 1U);
  EXPECT_EQ(report->Tables()[0].border, 7);
  EXPECT_EQ(report::TextTable(report::Shown(report->Tables()[0]), 100),
            "+-------------------------+-----------+------------+------+\n"
            "| Test {Limits}           | Low value | High value | Unit |\n"
            "+=========================+===========+============+======+\n"
            "| IEC|62353 (class I; BF) |           |        300 |  mA  |\n"
            "+-------------------------+-----------+------------+------+\n");
}

TEST_F(StandardCollTest, PrintsNothingWithoutLimitsOfTheKey) {
  const auto coll = Coll();
  coll->Add(Standard("other", "", "1", "2", "OTHER KEY"));
  const auto report = std::make_shared<report::ReportObject>();
  coll->Print(report, nullptr, {"NO LIMIT KEY", "Limits", "0"});
  EXPECT_TRUE(report->Tables().empty());
  EXPECT_NE(support::ErrorNumber([&] { coll->Print(report, nullptr, {"NO LIMIT KEY"}); }), 0);
}

}  // namespace
}  // namespace host
