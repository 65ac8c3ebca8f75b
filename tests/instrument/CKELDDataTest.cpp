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

keld::MtiDataArray Identity(const std::string& type, const std::string& serial, const std::string& firmware) {
  return {type, serial, firmware, std::string(), std::string("NO VALUE")};
}

class CKELDDataTest : public testing::Test {
 protected:
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
  EXPECT_EQ(keld::CKELDData::Shared(), keld::CKELDData::Shared());
}

TEST_F(CKELDDataTest, HasNoTesterAtFirst) {
  const auto data = keld::CKELDData::Shared();
  EXPECT_EQ(data->SerialNumber(), "");
  EXPECT_EQ(data->MTIType(), "KELD(IN)");
  EXPECT_EQ(data->FirmwareVersion(), "");
  EXPECT_EQ(data->CalibValue(), 0);
  EXPECT_TRUE(data->CalibratedSerialNumbers().empty());
}

TEST_F(CKELDDataTest, StartsWithTheTesterSeenLast) {
  Write(kSettings, "LastMTI", std::string("4711"));
  Write(kInstruments, "4711", 35);
  const auto data = keld::CKELDData::Shared();
  EXPECT_EQ(data->SerialNumber(), "4711");
  EXPECT_EQ(data->CalibValue(), 35);
}

TEST_F(CKELDDataTest, SerialNumberLoadsItsCalibrationAndIsStored) {
  Write(kInstruments, "4711", 35);
  const auto data = keld::CKELDData::Shared();
  data->SetSerialNumber("4711");
  EXPECT_EQ(data->CalibValue(), 35);
  EXPECT_EQ(Read(kSettings, "LastMTI"), Variant(std::string("4711")));
  data->SetSerialNumber("never calibrated");
  EXPECT_EQ(data->CalibValue(), 0);
  EXPECT_EQ(Read(kSettings, "LastMTI"), Variant(std::string("never calibrated")));
}

TEST_F(CKELDDataTest, EmptySerialNumberIsNotStored) {
  Write(kInstruments, "4711", 35);
  const auto data = keld::CKELDData::Shared();
  data->SetSerialNumber("4711");
  data->SetSerialNumber("");
  EXPECT_EQ(data->SerialNumber(), "");
  EXPECT_EQ(data->CalibValue(), 0);
  EXPECT_EQ(Read(kSettings, "LastMTI"), Variant(std::string("4711")));
  data->SetCalibValue(5);
  EXPECT_EQ(data->CalibValue(), 5);
  EXPECT_EQ(data->CalibratedSerialNumbers(), std::vector<std::string>{"4711"});
}

TEST_F(CKELDDataTest, ACalibrationValueIsStoredUnderTheSerialNumber) {
  const auto data = keld::CKELDData::Shared();
  data->SetSerialNumber("4711");
  data->SetCalibValue(42);
  EXPECT_EQ(Read(kInstruments, "4711"), Variant(42));
  data->SetSerialNumber("0815");
  data->SetCalibValue(-1);
  EXPECT_EQ(data->CalibratedSerialNumbers(), (std::vector<std::string>{"0815", "4711"}));
  data->SetSerialNumber("4711");
  EXPECT_EQ(data->CalibValue(), 42);
}

TEST_F(CKELDDataTest, StoredValueThatIsNotANumberIsZero) {
  Write(kInstruments, "1", std::string("abc"));
  Write(kInstruments, "2", std::string("99999999999"));
  Write(kInstruments, "3", std::string("35"));
  const auto data = keld::CKELDData::Shared();
  for (const auto& [serial, value] : {std::pair{"1", 0}, {"2", 0}, {"3", 35}}) {
    data->SetCalibValue(7);
    data->SetSerialNumber(serial);
    EXPECT_EQ(data->CalibValue(), value) << serial;
  }
}

TEST_F(CKELDDataTest, IdentityComesFromTheReply) {
  Write(kInstruments, "4711", 35);
  const auto data = keld::CKELDData::Shared();
  data->TakeIdentity(Identity("KELD(IN)-2", "4711", "1.05"));
  EXPECT_EQ(data->MTIType(), "KELD(IN)-2");
  EXPECT_EQ(data->SerialNumber(), "4711");
  EXPECT_EQ(data->FirmwareVersion(), "1.05");
  EXPECT_EQ(data->CalibValue(), 35);
}

TEST_F(CKELDDataTest, EmptySerialNumberInTheReplyKeepsTheOldOne) {
  const auto data = keld::CKELDData::Shared();
  data->SetSerialNumber("4711");
  data->SetCalibValue(35);
  data->TakeIdentity(Identity("other", "", "2.0"));
  EXPECT_EQ(data->SerialNumber(), "4711");
  EXPECT_EQ(data->CalibValue(), 35);
  EXPECT_EQ(data->MTIType(), "other");
  EXPECT_EQ(data->FirmwareVersion(), "2.0");
}

TEST_F(CKELDDataTest, MissingSerialNumberIsNoValue) {
  const auto data = keld::CKELDData::Shared();
  data->TakeIdentity(Identity("KELD(IN)", "NO VALUE", "NO VALUE"));
  EXPECT_EQ(data->SerialNumber(), "NO VALUE");
  EXPECT_EQ(Read(kSettings, "LastMTI"), Variant(std::string("NO VALUE")));
}

TEST_F(CKELDDataTest, PlainFieldsAreKept) {
  const auto data = keld::CKELDData::Shared();
  data->SetMTIType("type");
  data->SetFirmwareVersion("3.1");
  EXPECT_EQ(data->MTIType(), "type");
  EXPECT_EQ(data->FirmwareVersion(), "3.1");
}

TEST_F(CKELDDataTest, TheTesterGetsARecordAndKeepsIt) {
  const auto instruments = std::make_shared<bench::InstrumentColl>();
  const auto data = keld::CKELDData::Shared();
  data->TakeIdentity(Identity("KELD(IN)-2", "4711", "1.05"));
  data->SetCalibValue(35);
  EXPECT_EQ(data->UpdateInstrumentRecord(instruments), 1);
  ASSERT_EQ(instruments->Count(), 1);
  const auto record = instruments->item(1);
  EXPECT_EQ(record->TypeName(), "KELD(IN)");
  EXPECT_EQ(record->MTIType(), "KELD(IN)-2");
  EXPECT_EQ(record->SerialNumber(), "4711");
  EXPECT_EQ(record->FirmwareVersion(), "1.05");
  EXPECT_EQ(record->Index(), 1);
  EXPECT_EQ(record->Property("calib"), "35");

  data->SetCalibValue(-7);
  data->SetFirmwareVersion("1.06");
  EXPECT_EQ(data->UpdateInstrumentRecord(instruments), 1);
  EXPECT_EQ(instruments->Count(), 1);
  EXPECT_EQ(record->FirmwareVersion(), "1.06");
  EXPECT_EQ(record->Property("calib"), "-7");
}

TEST_F(CKELDDataTest, RecordIsFoundByTypeAndSerialNumber) {
  const auto instruments = std::make_shared<bench::InstrumentColl>();
  const auto data = keld::CKELDData::Shared();
  data->SetSerialNumber("1");
  EXPECT_EQ(data->UpdateInstrumentRecord(instruments), 1);
  instruments->item(1)->SetTypeName("another kind");
  EXPECT_EQ(data->UpdateInstrumentRecord(instruments), 2);
  data->SetSerialNumber("2");
  EXPECT_EQ(data->UpdateInstrumentRecord(instruments), 3);
  data->SetSerialNumber("1");
  EXPECT_EQ(data->UpdateInstrumentRecord(instruments), 2);
}

TEST_F(CKELDDataTest, NoCollectionGivesNoRecord) {
  EXPECT_EQ(keld::CKELDData::Shared()->UpdateInstrumentRecord(nullptr), 0);
}

TEST_F(CKELDDataTest, FailingRegistryKeepsTheFields) {
  const auto data = keld::CKELDData::Shared();
  std::filesystem::create_directories(host_.Folder());
  std::ofstream(host_.Folder() / "registry.json") << "garbled";
  data->SetSerialNumber("4711");
  data->SetCalibValue(35);
  EXPECT_EQ(data->SerialNumber(), "4711");
  EXPECT_EQ(data->CalibValue(), 35);
  EXPECT_TRUE(data->CalibratedSerialNumbers().empty());
}

}  // namespace
}  // namespace instrument_test
