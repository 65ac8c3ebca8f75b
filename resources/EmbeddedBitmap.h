#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace keld {

/// One bitmap file in the library's read-only data.
struct EmbeddedBitmap {
  std::string_view sKey;        ///< resource key, in capitals
  const unsigned char* puData;  ///< first byte of the file
  std::size_t ulSize;           ///< size of the file in bytes
};

/// All bitmaps of the library; the build makes the function from the files in resources/bitmaps.
std::span<const EmbeddedBitmap> EmbeddedBitmaps();

}  // namespace keld
