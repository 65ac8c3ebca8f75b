#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"

namespace orvik {

/// Reads and writes settings (class "OrvikTypeLib.RegistryReader"). Writes are durable when the call returns.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IRegistryReader : public virtual IObject {
 public:
  /// Opens a key by hive code (0x80000002 is HKEY_LOCAL_MACHINE) and path with "\\" between its parts; false
  /// when it does not exist or cannot be read.
  bool OpenKey(std::int32_t lHive, const std::string& sPath) { return IRegistryReader_OpenKey(lHive, sPath); }
  /// Opens a key, creating it first when it does not exist; false when that is not possible.
  bool CreateKey(std::int32_t lHive, const std::string& sPath) {
    return IRegistryReader_CreateKey(lHive, sPath);
  }
  /// Whether a key is open.
  bool IsOpen() const { return IRegistryReader_IsOpen(); }
  /// The value: a string or a 32-bit integer; empty when it is missing or no key is open.
  Variant ReadValue(const std::string& sName) const { return IRegistryReader_ReadValue(sName); }
  /// Writes a string or a 32-bit integer; `HostError` when no key is open or the store cannot be written.
  void WriteValue(const std::string& sName, const Variant& vValue) {
    IRegistryReader_WriteValue(sName, vValue);
  }
  /// The names of the open key's values, in alphabetical order.
  std::vector<std::string> ValueNames() const { return IRegistryReader_ValueNames(); }

 private:
  virtual bool IRegistryReader_OpenKey(std::int32_t lHive, const std::string& sPath) = 0;
  virtual bool IRegistryReader_CreateKey(std::int32_t lHive, const std::string& sPath) = 0;
  virtual bool IRegistryReader_IsOpen() const = 0;
  virtual Variant IRegistryReader_ReadValue(const std::string& sName) const = 0;
  virtual void IRegistryReader_WriteValue(const std::string& sName, const Variant& vValue) = 0;
  virtual std::vector<std::string> IRegistryReader_ValueNames() const = 0;
};

}  // namespace orvik
