#pragma once

#include <cstddef>
#include <ostream>

/// Counts allocations by `operator new`, which Allocations.cpp replaces, and by the XML library.
namespace leaks {

/// Allocated blocks, and the bytes requested for them.
struct Held {
  std::size_t blocks = 0;
  std::size_t bytes = 0;

  bool operator==(const Held&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Held& held) {
  return out << held.blocks << " blocks of " << held.bytes << " bytes";
}

Held HeldNow();

}  // namespace leaks
