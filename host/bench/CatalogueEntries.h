#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace host::bench {

class Workbench;

/// A test or sequence that can be added to a document.
struct CatalogueEntry {
  std::int32_t testId;
  std::int32_t parent;  ///< the sequence that it belongs to; 0 at the top
  bool sequence;
  std::size_t depth;
  std::string name;
  std::string unit;  ///< that its readings are recorded in; empty for a sequence
};

/// The bitmap file of the test's small icon; empty when the plug-in has none.
std::vector<std::byte> PictureOf(Workbench& workbench, std::int32_t testId);

/// The catalogue's entries in its order, parents before children.
std::vector<CatalogueEntry> CatalogueEntries(Workbench& workbench);

}  // namespace host::bench
