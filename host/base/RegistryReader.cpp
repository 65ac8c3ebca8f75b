#include "host/base/RegistryReader.h"

#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"

namespace host {
namespace {
constexpr std::int32_t kLevelConfiguration = 3;
}

void RegistryReader::Report(const orvik::HostError& error) const {
  log_->LogEntry(error.Source(), error.Number(), "RegistryReader", kLevelConfiguration, error.Description(),
                 {}, {}, {}, {});
}

/// The step's answer; false, and an entry in the error log, when the store fails.
template <class Step>
bool RegistryReader::Reported(Step step) const {
  try {
    return step();
  } catch (const orvik::HostError& error) {
    Report(error);
    return false;
  }
}

bool RegistryReader::IRegistryReader_OpenKey(std::int32_t lHive, const std::string& sPath) {
  key_.reset();
  if (!Reported([&] { return store_->HasKey(lHive, sPath); })) return false;
  key_ = OpenedKey{lHive, sPath};
  return true;
}

bool RegistryReader::IRegistryReader_CreateKey(std::int32_t lHive, const std::string& sPath) {
  key_.reset();
  const bool created = Reported([&] {
    store_->CreateKey(lHive, sPath);
    return true;
  });
  if (created) key_ = OpenedKey{lHive, sPath};
  return created;
}

orvik::Variant RegistryReader::IRegistryReader_ReadValue(const std::string& sName) const {
  if (!key_) return {};
  return store_->Read(key_->hive, key_->path, sName);
}

void RegistryReader::IRegistryReader_WriteValue(const std::string& sName, const orvik::Variant& vValue) {
  if (!key_)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, "OrvikTypeLib.RegistryReader",
                           Tr("no key is open; open or create one before \"%%1\" is written", {sName}));
  try {
    store_->WriteForPlugIn(key_->hive, key_->path, sName, vValue);
  } catch (const orvik::HostError& error) {
    Report(error);
    throw;
  }
}

std::vector<std::string> RegistryReader::IRegistryReader_ValueNames() const {
  if (!key_) return {};
  return store_->Names(key_->hive, key_->path);
}

}  // namespace host
