#include "host/base/RegistryStore.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <limits>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Files.h"
#include "host/base/Tr.h"

namespace host {
namespace {

using orvik::HostError;
using Json = nlohmann::json;

constexpr char kRegistrySource[] = "OrvikTypeLib.RegistryReader";
constexpr char kFormat[] = "orvik registry";
constexpr int kRegistryVersion = 1;
constexpr int kDeepest = 16;

std::string HiveName(std::int32_t hive) {
  switch (static_cast<std::uint32_t>(hive)) {
    case 0x80000000U:
      return "HKEY_CLASSES_ROOT";
    case 0x80000001U:
      return "HKEY_CURRENT_USER";
    case 0x80000002U:
      return "HKEY_LOCAL_MACHINE";
    case 0x80000003U:
      return "HKEY_USERS";
    default: {
      char text[16];
      std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(hive));
      return text;
    }
  }
}

/// The key's one name: hive and parts of the path with single backslashes between them.
std::string KeyName(std::int32_t hive, const std::string& path) {
  std::string name = HiveName(hive);
  std::size_t start = 0;
  while (start <= path.size()) {
    const auto end = std::min(path.find('\\', start), path.size());
    if (end > start) name += "\\" + path.substr(start, end - start);
    start = end + 1;
  }
  return name;
}

bool IsOrIsAbove(const std::string& key, const std::string& other) {
  return other == key ||
         (other.size() > key.size() && other.compare(0, key.size(), key) == 0 && other[key.size()] == '\\');
}

[[noreturn]] void Refuse(const std::filesystem::path& file, const std::string& reason) {
  throw HostError(HostError::kPathError, kRegistrySource,
                  Tr("%%1 cannot be used: %%2. It was left as it is; repair it, or move it away to start "
                     "with empty settings",
                     {file.string(), reason}));
}

Json Parsed(const std::string& text, const std::filesystem::path& file) {
  bool tooDeep = false;
  const auto watchDepth = [&tooDeep](int depth, Json::parse_event_t, Json&) {
    tooDeep = tooDeep || depth > kDeepest;
    return !tooDeep;
  };
  try {
    Json parsed = Json::parse(text, watchDepth);
    if (tooDeep) Refuse(file, Tr("it is nested too deeply"));
    return parsed;
  } catch (const Json::exception& fault) {
    Refuse(file, Tr("it is damaged or cut short (%%1)", {fault.what()}));
  }
}

void Check(const Json& all, const std::filesystem::path& file) {
  if (!all.is_object() || all.value("format", Json()) != kFormat) Refuse(file, Tr("it is no settings file"));
  const auto version = all.value("version", Json());
  if (!version.is_number_integer()) Refuse(file, Tr("it names no version"));
  if (version > kRegistryVersion) Refuse(file, Tr("it was written by a newer version of this program"));
  const auto keys = all.find("keys");
  if (keys == all.end() || !keys->is_object()) Refuse(file, Tr("it holds no keys"));
  for (const auto& [name, key] : keys->items()) {
    if (!key.is_object()) Refuse(file, Tr("the key \"%%1\" holds no values", {name}));
  }
}

Json EmptyStore() { return {{"format", kFormat}, {"version", kRegistryVersion}, {"keys", Json::object()}}; }

Json ToJson(const orvik::Variant& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  throw HostError(HostError::kTypeMismatch, kRegistrySource,
                  Tr("a setting is a text or a 32-bit whole number"));
}

}  // namespace

RegistryStore::RegistryStore(const std::filesystem::path& folder)
    : file_(folder.empty() ? folder : folder / "registry.json"), lock_(folder / "registry.lock") {}

bool RegistryStore::HasKey(std::int32_t hive, const std::string& path) const {
  const auto key = KeyName(hive, path);
  for (const auto& [name, values] : standIns_) {
    if (IsOrIsAbove(key, name)) return true;
  }
  const auto& keys = Current().at("keys");
  for (auto known = keys.begin(); known != keys.end(); ++known) {
    if (IsOrIsAbove(key, known.key())) return true;
  }
  return false;
}

void RegistryStore::CreateKey(std::int32_t hive, const std::string& path) {
  const auto key = KeyName(hive, path);
  if (Key(key)) return;
  Modify([&](Json& keys) { keys.emplace(key, Json::object()); });
}

orvik::Variant RegistryStore::Read(std::int32_t hive, const std::string& path,
                                   const std::string& name) const {
  const auto keyName = KeyName(hive, path);
  if (const auto standIn = standIns_.find(keyName); standIn != standIns_.end()) {
    if (const auto text = standIn->second.find(name); text != standIn->second.end()) return text->second;
  }
  const auto* key = Key(keyName);
  if (!key) return {};
  const auto value = key->find(name);
  if (value == key->end()) return {};
  if (value->is_string()) return value->get<std::string>();
  if (value->is_number_integer()) {
    const auto number = value->get<std::int64_t>();
    if (number >= std::numeric_limits<std::int32_t>::min() &&
        number <= std::numeric_limits<std::int32_t>::max())
      return static_cast<std::int32_t>(number);
  }
  throw HostError(
      HostError::kTypeMismatch, kRegistrySource,
      Tr("%%1: the value \"%%2\" of the key \"%%3\" is neither a text nor a 32-bit whole number; correct it",
         {file_.string(), name, keyName}));
}

void RegistryStore::Write(std::int32_t hive, const std::string& path, const std::string& name,
                          const orvik::Variant& value) {
  const Json written = ToJson(value);
  Modify([&](Json& keys) { keys[KeyName(hive, path)][name] = written; });
}

std::vector<std::string> RegistryStore::Names(std::int32_t hive, const std::string& path) const {
  const auto keyName = KeyName(hive, path);
  std::map<std::string, bool> names;
  if (const auto* key = Key(keyName)) {
    for (auto value = key->begin(); value != key->end(); ++value) names[value.key()] = true;
  }
  if (const auto standIn = standIns_.find(keyName); standIn != standIns_.end()) {
    for (const auto& [name, text] : standIn->second) names[name] = true;
  }
  std::vector<std::string> sorted;
  sorted.reserve(names.size());
  for (const auto& [name, known] : names) sorted.push_back(name);
  return sorted;
}

void RegistryStore::StandIn(std::int32_t hive, const std::string& path, const std::string& name,
                            const std::string& text) {
  standIns_[KeyName(hive, path)][name] = text;
}

orvik::platform::Subscription RegistryStore::GuardWrites(std::int32_t hive, const std::string& path,
                                                         Writer writer) {
  const auto guard = std::make_shared<Writer>(std::move(writer));
  guards_[KeyName(hive, path)] = guard;
  return orvik::platform::Subscription(guard);
}

void RegistryStore::WriteForPlugIn(std::int32_t hive, const std::string& path, const std::string& name,
                                   const orvik::Variant& value) {
  const auto known = guards_.find(KeyName(hive, path));
  const auto guard = known == guards_.end() ? nullptr : known->second.lock();
  if (guard) return (*guard)(name, value);
  Write(hive, path, name, value);
}

const RegistryStore::Json* RegistryStore::Key(const std::string& key) const {
  const auto& keys = Current().at("keys");
  const auto found = keys.find(key);
  return found == keys.end() ? nullptr : &*found;
}

const RegistryStore::Json& RegistryStore::Current() const {
  // The stamp is taken first: a file replaced in between is read again next time.
  const auto stamp = StampNow();
  if (!stamp || stamp != cachedStamp_) {
    cached_ = ReadAll();
    cachedStamp_ = stamp;
  }
  return cached_;
}

std::optional<RegistryStore::Stamp> RegistryStore::StampNow() const {
  struct stat status {};
  if (stat(file_.c_str(), &status) != 0) return {};
  return Stamp{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
               status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

RegistryStore::Json RegistryStore::ReadAll() const {
  struct stat status {};
  if (file_.empty() || (stat(file_.c_str(), &status) != 0 && errno == ENOENT)) return EmptyStore();
  Json all = Parsed(ReadFile(file_), file_);
  Check(all, file_);
  return all;
}

template <class Change>
void RegistryStore::Modify(Change change) {
  if (file_.empty())
    throw HostError(HostError::kPathError, kRegistrySource,
                    Tr("there is no folder for settings; name one with --state or ORVIK_STATE"));
  CreateFolder(file_.parent_path());
  const FileLock lock(lock_, kLockPatience);
  Json all = ReadAll();
  change(all.at("keys"));
  std::string text;
  try {
    text = all.dump(2) + "\n";
  } catch (const Json::exception&) {
    throw HostError(HostError::kInvalidArgument, kRegistrySource,
                    Tr("the setting holds bytes that are not UTF-8 text"));
  }
  ReplaceFile(file_, text);
  cached_ = std::move(all);
  cachedStamp_ = StampNow();
}

}  // namespace host
