#include <gtest/gtest.h>

#include "OrvikTypeLib/IXmlNode.h"
#include "host/xml/Persistence.h"
#include "host/xml/XmlDocument.h"
#include "tests/support/Errors.h"

namespace host {
namespace {

using orvik::HostError;
using support::ErrorNumber;

TEST(Persistence, ValueIsTheTextOfItsNode) {
  xml::XmlDocument document;
  xml::Persistence persistence;
  const auto node = persistence.WriteValue(document.CreateRoot("Measurement"), "12.5");
  EXPECT_EQ(node->Name(), "Value");
  EXPECT_EQ(node->Text(), "12.5");
  EXPECT_EQ(persistence.ReadValue(node), "12.5");
  EXPECT_EQ(document.Root()->ChildCount(), 1);
}

TEST(Persistence, RejectsAnEmptyValue) {
  xml::XmlDocument document;
  xml::Persistence persistence;
  const auto node = persistence.WriteValue(document.CreateRoot("Measurement"), "");
  EXPECT_EQ(node->Text(), "");
  EXPECT_EQ(support::ErrorNumber([&] { persistence.ReadValue(node); }), HostError::kTypeMismatch);
}

TEST(Persistence, StatusHasANameOnlyWhenThereIsOne) {
  xml::XmlDocument document;
  xml::Persistence persistence;
  const auto root = document.CreateRoot("ResultItem");
  const auto plain = persistence.WriteStatus(root, "", 2);
  EXPECT_EQ(plain->Name(), "Status");
  EXPECT_FALSE(plain->HasAttribute("Name"));
  EXPECT_EQ(persistence.ReadStatus(plain), 2);
  EXPECT_EQ(persistence.WriteStatus(root, "Electrical", -1)->Attribute("Name"), "Electrical");
}

TEST(Persistence, RejectsAStatusThatIsNotANumber) {
  xml::XmlDocument document;
  xml::Persistence persistence;
  const auto node = document.CreateRoot("Status");
  for (const auto* text : {"", "passed", "1.0", "99999999999"}) {
    node->SetText(text);
    EXPECT_EQ(support::ErrorNumber([&] { persistence.ReadStatus(node); }), HostError::kTypeMismatch) << text;
  }
}

TEST(Persistence, EmptyNodesAreRefused) {
  xml::Persistence persistence;
  EXPECT_EQ(support::ErrorNumber([&] { persistence.WriteValue(nullptr, "x"); }), HostError::kEmptyReference);
  EXPECT_EQ(support::ErrorNumber([&] { persistence.ReadValue(nullptr); }), HostError::kEmptyReference);
  EXPECT_EQ(support::ErrorNumber([&] { persistence.WriteStatus(nullptr, "", 1); }),
            HostError::kEmptyReference);
  EXPECT_EQ(support::ErrorNumber([&] { persistence.ReadStatus(nullptr); }), HostError::kEmptyReference);
}

}  // namespace
}  // namespace host
