#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IInstrumentColl.h"
#include "OrvikTypeLib/IObject.h"
#include "instrument/CKELDInstrument.h"
#include "plugin/base/MKELDConstants.h"

namespace keld::instrument {

/// The identity of the connected tester and the resistance of its leads. One object for the process.
///
/// The registry stores the serial number of the last tester and the calibration value of every tester. A key
/// or value that cannot be read leaves its field unchanged.
class CKELDData final : public virtual orvik::IObject {
 public:
  /// The one for the process, created on first use.
  static std::shared_ptr<CKELDData> Shared();

  std::string SerialNumber() const { return sSerialNumber; }
  /// Also loads the calibration value stored for the tester (0 when there is none) and stores it as the
  /// last tester. An empty serial number means no tester: nothing is looked up or stored.
  void SetSerialNumber(const std::string& sNewSerialNumber);

  std::string MTIType() const { return sMTIType; }
  void SetMTIType(const std::string& sNewType) { sMTIType = sNewType; }

  std::string FirmwareVersion() const { return sFirmwareVersion; }
  void SetFirmwareVersion(const std::string& sNewVersion) { sFirmwareVersion = sNewVersion; }

  /// Resistance of the test leads in milliohm; it is subtracted from protective-earth readings.
  std::int32_t CalibValue() const { return lCalibValue; }
  /// Also stores the value under the serial number; without one it is kept only here.
  void SetCalibValue(std::int32_t lNewValue);

  /// Takes type, serial number and firmware version from an "irem" reply. An empty serial number keeps the
  /// known one.
  void TakeIdentity(const MtiDataArray& avData);

  /// Finds the tester's record in the collection or adds one, fills it, and returns its index; 0 when there
  /// is no such record and none can be created.
  std::int32_t UpdateInstrumentRecord(const std::shared_ptr<orvik::IInstrumentColl>& Instruments) const;

  /// Serial numbers with a stored calibration value, in alphabetical order.
  std::vector<std::string> CalibratedSerialNumbers() const;

 private:
  CKELDData();

  std::string sSerialNumber;
  std::string sMTIType = MKELDConstants::kPlugInID;
  std::string sFirmwareVersion;
  std::int32_t lCalibValue = 0;
};

}  // namespace keld::instrument
