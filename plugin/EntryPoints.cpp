#include "OrvikTypeLib/Library.h"
#include "plugin/ClassLibrary.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDGlobalVars.h"

// The functions that the library exports.

extern "C" {

[[gnu::visibility("default")]] std::uint32_t OrvikContractVersion() { return orvik::kContractVersion; }

[[gnu::visibility("default")]] void OrvikOpenLibrary(const std::shared_ptr<orvik::IHost>& Host,
                                                     std::shared_ptr<orvik::IClassLibrary>& Library) {
  Library.reset();
  if (!Host) return;
  keld::Attempt([&] {
    keld::MKELDGlobalVars::Open(Host);
    Library = std::make_shared<keld::plugin::ClassLibrary>();
  });
}

[[gnu::visibility("default")]] void OrvikCloseLibrary() {
  keld::Attempt([] { keld::MKELDGlobalVars::Close(); });
}

}  // extern "C"
