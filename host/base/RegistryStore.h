#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/Variant.h"
#include "platform/Event.h"

namespace host {

/// The settings of all programs of this host: the file "registry.json" in the state folder.
///
/// Keys are case-sensitive, so that two testers never share a value. Writes are durable when the
/// call returns, and two programs may write at once: each reads, changes and replaces the file under a lock.
/// A file that is cut short, garbled or of another kind is never touched: every call fails with `HostError`
/// 75 that names it. What is in the file beyond what this class knows is kept.
class RegistryStore {
 public:
  /// @param folder the state folder; empty when there is none: the store is empty and cannot be written
  explicit RegistryStore(const std::filesystem::path& folder);

  /// Whether the key exists. A key exists too when one below it does.
  bool HasKey(std::int32_t hive, const std::string& path) const;
  void CreateKey(std::int32_t hive, const std::string& path);

  /// The value, a string or a 32-bit integer; empty when it is missing. `HostError` 13 when the file holds a
  /// value of another kind.
  orvik::Variant Read(std::int32_t hive, const std::string& path, const std::string& name) const;
  /// Writes a string or a 32-bit integer, creating the key when it is missing. `HostError` 13 for any other
  /// value.
  void Write(std::int32_t hive, const std::string& path, const std::string& name,
             const orvik::Variant& value);
  /// The names of the key's values in alphabetical order.
  std::vector<std::string> Names(std::int32_t hive, const std::string& path) const;

  /// From now on this text is the value, and its key exists, whatever the file says; the file is not changed.
  void StandIn(std::int32_t hive, const std::string& path, const std::string& name, const std::string& text);

  /// Takes a plug-in's write of one value: its name and the value. May throw `HostError`.
  using Writer = std::function<void(const std::string& name, const orvik::Variant& value)>;
  /// From now on, until the subscription ends, `writer` gets what plug-ins write into the key
  /// (`RegistryReader`) in the place of the file. One for a key; a later one replaces it.
  orvik::platform::Subscription GuardWrites(std::int32_t hive, const std::string& path, Writer writer);
  /// Writes for a plug-in: as `Write`, unless the key is guarded.
  void WriteForPlugIn(std::int32_t hive, const std::string& path, const std::string& name,
                      const orvik::Variant& value);

  const std::filesystem::path& File() const { return file_; }

 private:
  using Json = nlohmann::json;

  /// Tells one state of the file from another: every write makes a new file.
  struct Stamp {
    std::uint64_t device = 0, inode = 0, size = 0;
    std::int64_t seconds = 0, nanoseconds = 0;
    bool operator==(const Stamp&) const = default;
  };

  const Json& Current() const;
  Json ReadAll() const;
  std::optional<Stamp> StampNow() const;
  template <class Change>
  void Modify(Change change);
  const Json* Key(const std::string& key) const;

  std::filesystem::path file_;
  std::filesystem::path lock_;
  /// Stand-ins by key and value name.
  std::map<std::string, std::map<std::string, std::string>> standIns_;
  /// Writers of guarded keys, held by their subscriptions.
  std::map<std::string, std::weak_ptr<Writer>> guards_;
  mutable Json cached_;
  mutable std::optional<Stamp> cachedStamp_;
};

}  // namespace host
