#include <gtest/gtest.h>

#include <sstream>

#include "host/instruments/InstrumentColl.h"
#include "host/instruments/InstrumentRecord.h"
#include "tests/support/Errors.h"

namespace host {
namespace {

using orvik::HostError;
using support::ErrorNumber;

std::string Saved(const instruments::InstrumentColl& coll) {
  pugi::xml_document document;
  coll.Save(document);
  std::ostringstream text;
  document.document_element().print(text, "", pugi::format_raw);
  return text.str();
}

TEST(InstrumentColl, CountsFromOne) {
  instruments::InstrumentColl coll;
  EXPECT_EQ(coll.Count(), 0);
  const auto record = std::make_shared<instruments::InstrumentRecord>();
  coll.Add(record);
  EXPECT_EQ(coll.Count(), 1);
  EXPECT_EQ(coll.item(1), record);
  EXPECT_EQ(support::ErrorNumber([&] { coll.item(0); }), HostError::kSubscriptOutOfRange);
  EXPECT_EQ(support::ErrorNumber([&] { coll.item(2); }), HostError::kSubscriptOutOfRange);
  EXPECT_EQ(support::ErrorNumber([&] { coll.Add(nullptr); }), HostError::kTypeMismatch);
}

TEST(InstrumentColl, SavedRecordsReadBack) {
  instruments::InstrumentColl coll;
  const auto record = std::make_shared<instruments::InstrumentRecord>();
  record->SetTypeName("KELD(IN)");
  record->SetMTIType("KELD 3");
  record->SetSerialNumber("A<17>");
  record->SetFirmwareVersion("1.2");
  record->SetIndex(1);
  record->SetProperty("calib", "35");
  coll.Add(record);
  const auto text = Saved(coll);
  pugi::xml_document document;
  document.load_string(text.c_str());
  instruments::InstrumentColl loaded;
  loaded.Load(document.document_element());
  EXPECT_EQ(Saved(loaded), text);
  const auto read = loaded.item(1);
  EXPECT_EQ(read->TypeName(), "KELD(IN)");
  EXPECT_EQ(read->MTIType(), "KELD 3");
  EXPECT_EQ(read->SerialNumber(), "A<17>");
  EXPECT_EQ(read->FirmwareVersion(), "1.2");
  EXPECT_EQ(read->Index(), 1);
  EXPECT_EQ(read->Property("calib"), "35");
}

TEST(InstrumentColl, PropertyThatWasNeverSetIsEmpty) {
  EXPECT_EQ(instruments::InstrumentRecord().Property("calib"), "");
}

TEST(InstrumentColl, KeepsUnknownXml) {
  const std::string text =
      "<Instruments a=\"1\"><Instrument Index=\"1\" TypeName=\"\" MTIType=\"\" SerialNumber=\"\" "
      "FirmwareVersion=\"\" b=\"2\"><Extra/></Instrument><Other/></Instruments>";
  pugi::xml_document document;
  document.load_string(text.c_str());
  instruments::InstrumentColl coll;
  coll.Load(document.document_element());
  EXPECT_EQ(Saved(coll), text);
}

TEST(InstrumentColl, MalformedIndexIsRefused) {
  pugi::xml_document document;
  document.load_string("<Instruments><Instrument Index='one'/></Instruments>");
  instruments::InstrumentColl coll;
  EXPECT_EQ(support::ErrorNumber([&] { coll.Load(document.document_element()); }), HostError::kTypeMismatch);
}

}  // namespace
}  // namespace host
