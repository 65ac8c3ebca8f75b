// The file of settings.
#include "OrvikTypeLib/HostError.h"
#include "fuzz/HostErrors.h"
#include "fuzz/Scratch.h"
#include "host/base/RegistryStore.h"

namespace {

using fuzz::Require;
using host::RegistryStore;

constexpr char kFile[] = "registry.json";
constexpr auto kHive = static_cast<std::int32_t>(0x80000002U);
constexpr char kKey[] = "Software\\Telvane\\orvik\\KELD(IN)";

/// Every value of the key reads as a text, as a number, or is refused by its name.
void ReadValues(const RegistryStore& store) {
  for (const auto& name : store.Names(kHive, kKey))
    fuzz::RefusalOf([&] { store.Read(kHive, kKey, name); }, orvik::HostError::kTypeMismatch, name);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Scratch scratch;
  const auto text = fuzz::TextOf(data, size);
  scratch.Write(kFile, text);
  RegistryStore store(scratch.Folder());
  if (fuzz::RefusalOf([&] { store.HasKey(kHive, kKey); }, orvik::HostError::kPathError, kFile)) {
    fuzz::RefusalOf([&] { store.Write(kHive, kKey, "Name", 1); }, orvik::HostError::kPathError, kFile);
    Require(scratch.Read(kFile) == text, "a file that is refused is left as it is");
    return 0;
  }
  ReadValues(store);
  const auto before = store.Names(kHive, kKey);
  store.Write(kHive, kKey, "Name", "a text");
  const auto saved = scratch.Read(kFile);

  RegistryStore again(scratch.Folder());
  Require(again.Read(kHive, kKey, "Name") == orvik::Variant(std::string("a text")),
          "what was written is there");
  for (const auto& name : before) {
    const auto names = again.Names(kHive, kKey);
    Require(std::find(names.begin(), names.end(), name) != names.end(), "and so is what was there before");
  }
  again.Write(kHive, kKey, "Name", "a text");
  Require(scratch.Read(kFile) == saved, "saved again it has the same bytes");
  return 0;
}
