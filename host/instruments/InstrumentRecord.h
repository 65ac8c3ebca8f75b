#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <pugixml.hpp>
#include <string>

#include "OrvikTypeLib/IInstrumentRecord.h"
#include "host/xml/UnknownXml.h"

namespace host::instruments {

/// One test instrument, saved as
///
///     <Instrument Index="1" TypeName="KELD(IN)" MTIType="..." SerialNumber="..." FirmwareVersion="...">
///       <Property Name="calib">35</Property>
///     </Instrument>
class InstrumentRecord final : public orvik::IInstrumentRecord {
 public:
  /// Reads the record; throws `XmlError` for an index that is not a number.
  void Load(pugi::xml_node node);
  /// Adds the record to the parent.
  void Save(pugi::xml_node parent) const;

 private:
  std::string IInstrumentRecord_TypeName() const override { return typeName_; }
  void IInstrumentRecord_SetTypeName(const std::string& sTypeName) override { typeName_ = sTypeName; }
  std::string IInstrumentRecord_MTIType() const override { return mtiType_; }
  void IInstrumentRecord_SetMTIType(const std::string& sType) override { mtiType_ = sType; }
  std::string IInstrumentRecord_SerialNumber() const override { return serialNumber_; }
  void IInstrumentRecord_SetSerialNumber(const std::string& sSerial) override { serialNumber_ = sSerial; }
  std::string IInstrumentRecord_FirmwareVersion() const override { return firmwareVersion_; }
  void IInstrumentRecord_SetFirmwareVersion(const std::string& sVersion) override {
    firmwareVersion_ = sVersion;
  }
  std::int32_t IInstrumentRecord_Index() const override { return index_; }
  void IInstrumentRecord_SetIndex(std::int32_t lIndex) override { index_ = lIndex; }
  std::string IInstrumentRecord_Property(const std::string& sName) const override;
  void IInstrumentRecord_SetProperty(const std::string& sName, const std::string& sText) override;

  std::string typeName_, mtiType_, serialNumber_, firmwareVersion_;
  std::int32_t index_ = 0;
  std::map<std::string, std::string> properties_;
  xml::UnknownXml leftovers_;
};

}  // namespace host::instruments
