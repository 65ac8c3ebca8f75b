#include "instrument/CKELDData.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IInstrumentRecord.h"
#include "OrvikTypeLib/IRegistryReader.h"
#include "instrument/Number.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDGlobalVars.h"

namespace keld::instrument {

using orvik::Required;
using orvik::Variant;

namespace {

constexpr char kCalibProperty[] = "calib";

/// The value; empty when the key does not exist or holds no such value.
Variant ReadRegistry(const char* pcKey, const std::string& sName) {
  const auto Registry = MKELDGlobalVars::RegistryReader();
  return Required(Registry).OpenKey(MKELDConstants::kHive, pcKey) ? Registry->ReadValue(sName) : Variant{};
}

void WriteRegistry(const char* pcKey, const std::string& sName, const Variant& vValue) {
  const auto Registry = MKELDGlobalVars::RegistryReader();
  if (Required(Registry).CreateKey(MKELDConstants::kHive, pcKey)) Registry->WriteValue(sName, vValue);
}

/// The record of the tester with that serial number, or empty.
std::shared_ptr<orvik::IInstrumentRecord> FindRecord(orvik::IInstrumentColl& Instruments,
                                                     const std::string& sSerialNumber) {
  for (std::int32_t l = 1; l <= Instruments.Count(); ++l) {
    std::shared_ptr<orvik::IInstrumentRecord> Found;
    Attempt([&] {
      const auto Record = Instruments.item(l);
      if (Required(Record).TypeName() == MKELDConstants::kPlugInID && Record->SerialNumber() == sSerialNumber)
        Found = Record;
    });
    if (Found) return Found;
  }
  return nullptr;
}

}  // namespace

std::shared_ptr<CKELDData> CKELDData::Shared() {
  auto& Slot = MKELDGlobalVars::InstrumentDataSlot();
  if (!Slot) Slot = std::shared_ptr<CKELDData>(new CKELDData);
  return orvik::As<CKELDData>(Slot);
}

CKELDData::CKELDData() {
  std::string sLast;
  Attempt([&] {
    sLast = orvik::TextOf(ReadRegistry(MKELDConstants::kSettingsKey, MKELDConstants::kLastInstrumentValue));
  });
  if (!sLast.empty()) SetSerialNumber(sLast);
}

void CKELDData::SetSerialNumber(const std::string& sNewSerialNumber) {
  sSerialNumber = sNewSerialNumber;
  lCalibValue = 0;
  if (sSerialNumber.empty()) return;
  Attempt([&] {
    const Variant vStored = ReadRegistry(MKELDConstants::kInstrumentsKey, sSerialNumber);
    if (!orvik::IsEmpty(vStored)) lCalibValue = IntegerIn(vStored, INT32_MIN, INT32_MAX);
  });
  Attempt([&] {
    WriteRegistry(MKELDConstants::kSettingsKey, MKELDConstants::kLastInstrumentValue, sSerialNumber);
  });
}

void CKELDData::SetCalibValue(std::int32_t lNewValue) {
  lCalibValue = lNewValue;
  if (sSerialNumber.empty()) return;
  Attempt([&] { WriteRegistry(MKELDConstants::kInstrumentsKey, sSerialNumber, lCalibValue); });
}

void CKELDData::TakeIdentity(const MtiDataArray& avData) {
  const std::string sReported = orvik::TextOf(avData[1]);
  if (!sReported.empty()) SetSerialNumber(sReported);
  sMTIType = orvik::TextOf(avData[0]);
  sFirmwareVersion = orvik::TextOf(avData[2]);
}

std::int32_t CKELDData::UpdateInstrumentRecord(
    const std::shared_ptr<orvik::IInstrumentColl>& Instruments) const {
  std::shared_ptr<orvik::IInstrumentRecord> Record;
  Attempt([&] { Record = FindRecord(Required(Instruments), sSerialNumber); });
  const bool fNew = !Record;
  if (fNew) {
    Attempt([&] {
      const std::int32_t lIndex = Required(Instruments).Count() + 1;
      const auto Created =
          MKELDGlobalVars::CreateHostObject<orvik::IInstrumentRecord>(orvik::HostClasses::kInstrumentRecord);
      Created->SetTypeName(MKELDConstants::kPlugInID);
      Created->SetIndex(lIndex);
      Record = Created;
    });
  }
  Attempt([&] { Required(Record).SetMTIType(sMTIType); });
  Attempt([&] { Required(Record).SetSerialNumber(sSerialNumber); });
  Attempt([&] { Required(Record).SetFirmwareVersion(sFirmwareVersion); });
  Attempt([&] { Required(Record).SetProperty(kCalibProperty, std::to_string(lCalibValue)); });
  if (fNew) Attempt([&] { Required(Instruments).Add(Record); });

  std::int32_t lIndex = 0;
  Attempt([&] { lIndex = Required(Record).Index(); });
  return lIndex;
}

std::vector<std::string> CKELDData::CalibratedSerialNumbers() const {
  std::vector<std::string> asNumbers;
  Attempt([&] {
    const auto Registry = MKELDGlobalVars::RegistryReader();
    if (Required(Registry).OpenKey(MKELDConstants::kHive, MKELDConstants::kInstrumentsKey))
      asNumbers = Registry->ValueNames();
  });
  return asNumbers;
}

}  // namespace keld::instrument
