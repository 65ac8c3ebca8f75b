#pragma once

#include <cstddef>
#include <ostream>

/// Counts what this program holds from `operator new`, which Allocations.cpp replaces, and from the XML
/// library.
namespace leaks {

/// Blocks that are held now, and the bytes that were asked for with them.
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
