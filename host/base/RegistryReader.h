#pragma once

#include <memory>
#include <optional>
#include <string>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IErrorLog.h"
#include "OrvikTypeLib/IRegistryReader.h"
#include "host/base/RegistryStore.h"

namespace host {

/// One open key of the registry store. A store that cannot be read is reported to the error log, and its keys
/// do not open; a failed write is reported and passed on.
class RegistryReader final : public orvik::IRegistryReader {
 public:
  RegistryReader(std::shared_ptr<RegistryStore> store, std::shared_ptr<orvik::IErrorLog> log)
      : store_(std::move(store)), log_(std::move(log)) {}

 private:
  struct OpenedKey {
    std::int32_t hive = 0;
    std::string path;
  };

  bool IRegistryReader_OpenKey(std::int32_t lHive, const std::string& sPath) override;
  bool IRegistryReader_CreateKey(std::int32_t lHive, const std::string& sPath) override;
  bool IRegistryReader_IsOpen() const override { return key_.has_value(); }
  orvik::Variant IRegistryReader_ReadValue(const std::string& sName) const override;
  void IRegistryReader_WriteValue(const std::string& sName, const orvik::Variant& vValue) override;
  std::vector<std::string> IRegistryReader_ValueNames() const override;

  void Report(const orvik::HostError& error) const;
  template <class Step>
  bool Reported(Step step) const;

  std::shared_ptr<RegistryStore> store_;
  std::shared_ptr<orvik::IErrorLog> log_;
  std::optional<OpenedKey> key_;
};

}  // namespace host
