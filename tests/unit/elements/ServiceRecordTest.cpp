#include <gtest/gtest.h>

#include "OrvikTypeLib/IXmlNode.h"
#include "host/elements/InformationRecord.h"
#include "host/elements/ServiceRecord.h"
#include "host/xml/XmlDocument.h"
#include "tests/support/Errors.h"

namespace host {
namespace {

TEST(ServiceRecord, TakesTheNameThatTheElementHas) {
  const auto information = std::make_shared<elements::InformationRecord>();
  information->SetDisplayName("Earth leakage");
  elements::ServiceRecord record;
  record.Initialize(information, "NA", "/ 5.3");
  information->SetDisplayName("renamed later");
  EXPECT_EQ(record.Name(), "Earth leakage");
  EXPECT_EQ(record.Code(), "NA");
  EXPECT_EQ(record.Value(), "/ 5.3");
}

TEST(ServiceRecord, SavedRecordReadsBackWithWhatOthersAdded) {
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString(
      "<r><ServiceRecord Name='n' Code='P' Value='/ 5.3' Extra='e'><More/></ServiceRecord></r>"));
  elements::ServiceRecord record;
  record.Load(document.Root()->FirstChild(), nullptr);
  EXPECT_EQ(record.Name(), "n");
  EXPECT_EQ(record.Code(), "P");
  EXPECT_EQ(record.Value(), "/ 5.3");
  xml::XmlDocument copy;
  const auto saved = record.Save(copy.CreateRoot("r"));
  EXPECT_EQ(saved->Name(), "ServiceRecord");
  EXPECT_EQ(copy.SaveToString(), document.SaveToString());
}

TEST(ServiceRecord, NeedsAnInformationRecord) {
  elements::ServiceRecord record;
  EXPECT_EQ(support::ErrorNumber([&] { record.Initialize(nullptr, "P", ""); }),
            orvik::HostError::kEmptyReference);
}

}  // namespace
}  // namespace host
