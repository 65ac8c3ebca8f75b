#include "plugin/Picture.h"

#include <cstdlib>

#include "resources/Resources.h"

namespace keld::plugin {
namespace {

// Offsets in a bitmap file, of 32-bit little-endian numbers.
constexpr std::size_t kWidthOffset = 18;
constexpr std::size_t kHeightOffset = 22;
constexpr std::size_t kHeaderSize = 54;

std::int32_t NumberAt(const std::vector<std::byte>& aBitmap, std::size_t ulOffset) {
  std::uint32_t ulValue = 0;
  for (std::size_t i = 0; i < 4; ++i)
    ulValue |= std::to_integer<std::uint32_t>(aBitmap[ulOffset + i]) << (8 * i);
  return static_cast<std::int32_t>(ulValue);
}

}  // namespace

std::shared_ptr<Picture> Picture::FromResource(std::string_view sKey) {
  const auto Bytes = FindResource(sKey);
  if (Bytes.size() < kHeaderSize) return {};
  return std::shared_ptr<Picture>(new Picture({Bytes.begin(), Bytes.end()}));
}

std::vector<std::byte> Picture::IPicture_Bitmap() const { return maBitmap; }

std::int32_t Picture::IPicture_Width() const { return NumberAt(maBitmap, kWidthOffset); }

// A negative height means top-down row order.
std::int32_t Picture::IPicture_Height() const { return std::abs(NumberAt(maBitmap, kHeightOffset)); }

}  // namespace keld::plugin
