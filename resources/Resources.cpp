#include "resources/Resources.h"

#include <algorithm>

#include "resources/EmbeddedBitmap.h"

namespace keld {
namespace {

// Not std::toupper, which depends on the locale.
char ToUpper(char sLetter) {
  return sLetter >= 'a' && sLetter <= 'z' ? static_cast<char>(sLetter - 'a' + 'A') : sLetter;
}

bool SameKey(std::string_view sLeft, std::string_view sRight) {
  return std::equal(sLeft.begin(), sLeft.end(), sRight.begin(), sRight.end(),
                    [](char sA, char sB) { return ToUpper(sA) == ToUpper(sB); });
}

}  // namespace

std::span<const std::byte> FindResource(std::string_view sKey) {
  for (const EmbeddedBitmap& bitmap : EmbeddedBitmaps()) {
    if (SameKey(bitmap.sKey, sKey)) return std::as_bytes(std::span(bitmap.puData, bitmap.ulSize));
  }
  return {};
}

}  // namespace keld
