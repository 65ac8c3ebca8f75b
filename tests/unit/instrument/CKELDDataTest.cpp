#include <gtest/gtest.h>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IInstrumentRecord.h"
#include "OrvikTypeLib/IRegistryReader.h"
#include "host/instruments/InstrumentColl.h"
#include "instrument/CKELDData.h"
#include "tests/support/HostOnly.h"

namespace instrument_test {
namespace {

using orvik::Variant;

constexpr char kSettings[] = "Software\\Telvane\\orvik\\KELD(IN)";
constexpr char kInstruments[] = "Software\\Telvane\\orvik\\KELD(IN)\\MTI";

keld::instrument::MtiDataArray Identity(const std::string& type, const std::string& serial,
                                        const std::string& firmware) {
  return {type, serial, firmware, std::string(), std::string("NO VALUE")};
}

class CKELDDataTest : public testing::Test {
 protected:
  static keld::instrument::CKELDData& Data() { return *keld::instrument::CKELDData::Shared(); }
  static void Write(const char* key, const std::string& name, const Variant& value) {
    const auto registry = keld::MKELDGlobalVars::RegistryReader();
    ASSERT_TRUE(registry->CreateKey(static_cast<std::int32_t>(0x80000002U), key));
    registry->WriteValue(name, value);
  }
  static Variant Read(const char* key, const std::string& name) {
    const auto registry = keld::MKELDGlobalVars::RegistryReader();
    return registry->OpenKey(static_cast<std::int32_t>(0x80000002U), key) ? registry->ReadValue(name)
                                                                          : Variant{};
  }

  support::HostOnly host_;
};

TEST_F(CKELDDataTest, IsOneObjectForTheProcess) {
  EXPECT_EQ(keld::instrument::CKELDData::Shared(), keld::instrument::CKELDData::Shared());
}

TEST_F(CKELDDataTest, HasNoTesterAtFirst) {
  EXPECT_EQ(Data().SerialNumber(), "");
  EXPECT_EQ(Data().MTIType(), "KELD(IN)");
  EXPECT_EQ(Data().FirmwareVersion(), "");
  EXPECT_EQ(Data().CalibValue(), 0);
  EXPECT_TRUE(Data().CalibratedSerialNumbers().empty());
}

TEST_F(CKELDDataTest, StartsWithTheTesterSeenLast) {
  Write(kSettings, "LastMTI", std::string("4711"));
  Write(kInstruments, "4711", 35);
  EXPECT_EQ(Data().SerialNumber(), "4711");
  EXPECT_EQ(Data().CalibValue(), 35);
}

TEST_F(CKELDDataTest, SerialNumberLoadsItsCalibrationAndIsStored) {
  Write(kInstruments, "4711", 35);
  Data().SetSerialNumber("4711");
  EXPECT_EQ(Data().CalibValue(), 35);
  EXPECT_EQ(Read(kSettings, "LastMTI"), Variant(std::string("4711")));
  Data().SetSerialNumber("never calibrated");
  EXPECT_EQ(Data().CalibValue(), 0);
  EXPECT_EQ(Read(kSettings, "LastMTI"), Variant(std::string("never calibrated")));
}

TEST_F(CKELDDataTest, EmptySerialNumberIsNotStored) {
  Write(kInstruments, "4711", 35);
  Data().SetSerialNumber("4711");
  Data().SetSerialNumber("");
  EXPECT_EQ(Data().SerialNumber(), "");
  EXPECT_EQ(Data().CalibValue(), 0);
  EXPECT_EQ(Read(kSettings, "LastMTI"), Variant(std::string("4711")));
  Data().SetCalibValue(5);
  EXPECT_EQ(Data().CalibValue(), 5);
  EXPECT_EQ(Data().CalibratedSerialNumbers(), std::vector<std::string>{"4711"});
}

TEST_F(CKELDDataTest, ACalibrationValueIsStoredUnderTheSerialNumber) {
  Data().SetSerialNumber("4711");
  Data().SetCalibValue(42);
  EXPECT_EQ(Read(kInstruments, "4711"), Variant(42));
  Data().SetSerialNumber("0815");
  Data().SetCalibValue(-1);
  EXPECT_EQ(Data().CalibratedSerialNumbers(), (std::vector<std::string>{"0815", "4711"}));
  Data().SetSerialNumber("4711");
  EXPECT_EQ(Data().CalibValue(), 42);
}

TEST_F(CKELDDataTest, StoredValueThatIsNotANumberIsZero) {
  Write(kInstruments, "1", std::string("abc"));
  Write(kInstruments, "2", std::string("99999999999"));
  Write(kInstruments, "3", std::string("35"));
  for (const auto& [serial, value] : {std::pair{"1", 0}, {"2", 0}, {"3", 35}}) {
    Data().SetCalibValue(7);
    Data().SetSerialNumber(serial);
    EXPECT_EQ(Data().CalibValue(), value) << serial;
  }
}

TEST_F(CKELDDataTest, IdentityComesFromTheReply) {
  Write(kInstruments, "4711", 35);
  Data().TakeIdentity(Identity("KELD(IN)-2", "4711", "1.05"));
  EXPECT_EQ(Data().MTIType(), "KELD(IN)-2");
  EXPECT_EQ(Data().SerialNumber(), "4711");
  EXPECT_EQ(Data().FirmwareVersion(), "1.05");
  EXPECT_EQ(Data().CalibValue(), 35);
}

TEST_F(CKELDDataTest, EmptySerialNumberInTheReplyKeepsTheOldOne) {
  Data().SetSerialNumber("4711");
  Data().SetCalibValue(35);
  Data().TakeIdentity(Identity("other", "", "2.0"));
  EXPECT_EQ(Data().SerialNumber(), "4711");
  EXPECT_EQ(Data().CalibValue(), 35);
  EXPECT_EQ(Data().MTIType(), "other");
  EXPECT_EQ(Data().FirmwareVersion(), "2.0");
}

TEST_F(CKELDDataTest, MissingSerialNumberIsNoValue) {
  Data().TakeIdentity(Identity("KELD(IN)", "NO VALUE", "NO VALUE"));
  EXPECT_EQ(Data().SerialNumber(), "NO VALUE");
  EXPECT_EQ(Read(kSettings, "LastMTI"), Variant(std::string("NO VALUE")));
}

TEST_F(CKELDDataTest, PlainFieldsAreKept) {
  Data().SetMTIType("type");
  Data().SetFirmwareVersion("3.1");
  EXPECT_EQ(Data().MTIType(), "type");
  EXPECT_EQ(Data().FirmwareVersion(), "3.1");
}

TEST_F(CKELDDataTest, TheTesterGetsARecordAndKeepsIt) {
  const auto instruments = std::make_shared<host::instruments::InstrumentColl>();
  Data().TakeIdentity(Identity("KELD(IN)-2", "4711", "1.05"));
  Data().SetCalibValue(35);
  EXPECT_EQ(Data().UpdateInstrumentRecord(instruments), 1);
  ASSERT_EQ(instruments->Count(), 1);
  const auto record = instruments->item(1);
  EXPECT_EQ(record->TypeName(), "KELD(IN)");
  EXPECT_EQ(record->MTIType(), "KELD(IN)-2");
  EXPECT_EQ(record->SerialNumber(), "4711");
  EXPECT_EQ(record->FirmwareVersion(), "1.05");
  EXPECT_EQ(record->Index(), 1);
  EXPECT_EQ(record->Property("calib"), "35");

  Data().SetCalibValue(-7);
  Data().SetFirmwareVersion("1.06");
  EXPECT_EQ(Data().UpdateInstrumentRecord(instruments), 1);
  EXPECT_EQ(instruments->Count(), 1);
  EXPECT_EQ(record->FirmwareVersion(), "1.06");
  EXPECT_EQ(record->Property("calib"), "-7");
}

TEST_F(CKELDDataTest, RecordIsFoundByTypeAndSerialNumber) {
  const auto instruments = std::make_shared<host::instruments::InstrumentColl>();
  Data().SetSerialNumber("1");
  EXPECT_EQ(Data().UpdateInstrumentRecord(instruments), 1);
  instruments->item(1)->SetTypeName("another kind");
  EXPECT_EQ(Data().UpdateInstrumentRecord(instruments), 2);
  Data().SetSerialNumber("2");
  EXPECT_EQ(Data().UpdateInstrumentRecord(instruments), 3);
  Data().SetSerialNumber("1");
  EXPECT_EQ(Data().UpdateInstrumentRecord(instruments), 2);
}

TEST_F(CKELDDataTest, NoCollectionGivesNoRecord) {
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->UpdateInstrumentRecord(nullptr), 0);
}

TEST_F(CKELDDataTest, FailingRegistryKeepsTheFields) {
  std::filesystem::create_directories(host_.Folder());
  std::ofstream(host_.Folder() / "registry.json") << "garbled";
  Data().SetSerialNumber("4711");
  Data().SetCalibValue(35);
  EXPECT_EQ(Data().SerialNumber(), "4711");
  EXPECT_EQ(Data().CalibValue(), 35);
  EXPECT_TRUE(Data().CalibratedSerialNumbers().empty());
}

}  // namespace
}  // namespace instrument_test
