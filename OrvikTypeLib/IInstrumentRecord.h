#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// One test instrument that a document was measured with (class "OrvikTypeLib.InstrumentRecord").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IInstrumentRecord : public virtual IObject {
 public:
  /// The instrument's type name.
  std::string TypeName() const { return IInstrumentRecord_TypeName(); }
  /// Sets the type name.
  void SetTypeName(const std::string& sTypeName) { IInstrumentRecord_SetTypeName(sTypeName); }
  /// The type text that the instrument reported.
  std::string MTIType() const { return IInstrumentRecord_MTIType(); }
  /// Sets the reported type text.
  void SetMTIType(const std::string& sType) { IInstrumentRecord_SetMTIType(sType); }
  /// The serial number.
  std::string SerialNumber() const { return IInstrumentRecord_SerialNumber(); }
  /// Sets the serial number.
  void SetSerialNumber(const std::string& sSerial) { IInstrumentRecord_SetSerialNumber(sSerial); }
  /// The firmware version.
  std::string FirmwareVersion() const { return IInstrumentRecord_FirmwareVersion(); }
  /// Sets the firmware version.
  void SetFirmwareVersion(const std::string& sVersion) { IInstrumentRecord_SetFirmwareVersion(sVersion); }
  /// The record's number in its collection, from 1.
  std::int32_t Index() const { return IInstrumentRecord_Index(); }
  /// Sets the number.
  void SetIndex(std::int32_t lIndex) { IInstrumentRecord_SetIndex(lIndex); }
  /// A named property, for example "calib"; empty when it was never set.
  std::string Property(const std::string& sName) const { return IInstrumentRecord_Property(sName); }
  /// Sets a named property.
  void SetProperty(const std::string& sName, const std::string& sText) {
    IInstrumentRecord_SetProperty(sName, sText);
  }

 private:
  virtual std::string IInstrumentRecord_TypeName() const = 0;
  virtual void IInstrumentRecord_SetTypeName(const std::string& sTypeName) = 0;
  virtual std::string IInstrumentRecord_MTIType() const = 0;
  virtual void IInstrumentRecord_SetMTIType(const std::string& sType) = 0;
  virtual std::string IInstrumentRecord_SerialNumber() const = 0;
  virtual void IInstrumentRecord_SetSerialNumber(const std::string& sSerial) = 0;
  virtual std::string IInstrumentRecord_FirmwareVersion() const = 0;
  virtual void IInstrumentRecord_SetFirmwareVersion(const std::string& sVersion) = 0;
  virtual std::int32_t IInstrumentRecord_Index() const = 0;
  virtual void IInstrumentRecord_SetIndex(std::int32_t lIndex) = 0;
  virtual std::string IInstrumentRecord_Property(const std::string& sName) const = 0;
  virtual void IInstrumentRecord_SetProperty(const std::string& sName, const std::string& sText) = 0;
};

}  // namespace orvik
