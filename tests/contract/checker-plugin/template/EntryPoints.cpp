#include "OrvikTypeLib/Library.h"
#include "tests/contract/checker-plugin/template/ClassTable.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

// The three functions that the library exports. entry-points.map keeps everything else inside.

extern "C" {

// Asked first: a host of another contract version refuses the library here, before any object crosses.
[[gnu::visibility("default")]] std::uint32_t OrvikContractVersion() { return orvik::kContractVersion; }

// Hands over the host and takes the table of classes. No error crosses here: an empty table says "I cannot
// work".
[[gnu::visibility("default")]] void OrvikOpenLibrary(const std::shared_ptr<orvik::IHost>& Host,
                                                     std::shared_ptr<orvik::IClassLibrary>& Library) {
  Library.reset();
  if (!Host) return;
  check::SetHost(Host);
  Library = check::NewClassTable();
}

// The host has released every object. Release the host and anything else kept for the process.
[[gnu::visibility("default")]] void OrvikCloseLibrary() { check::SetHost(nullptr); }

}  // extern "C"
