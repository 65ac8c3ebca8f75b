#include "toolkit/headless/PictureBox.h"

#include <cstdint>
#include <cstdlib>

namespace toolkit::headless {
namespace {

// Offsets of width and height in a bitmap file, little-endian.
constexpr std::size_t kWidthAt = 18;
constexpr std::size_t kHeightAt = 22;
constexpr std::size_t kShortestHeader = 26;
// Keeps the size in twips in range.
constexpr std::int64_t kMostPixels = 32767;

platform::Twips Length(const std::vector<std::byte>& bitmap, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t byte = 0; byte < 4; ++byte)
    value |= std::to_integer<std::uint32_t>(bitmap[at + byte]) << (8 * byte);
  // A negative height means that the lines are stored top down.
  const std::int64_t pixels = std::abs(std::int64_t{static_cast<std::int32_t>(value)});
  return static_cast<platform::Twips>(std::min(pixels, kMostPixels)) * platform::kTwipsPerPixel;
}

}  // namespace

void PictureBox::SetBitmap(std::span<const std::byte> bitmap) {
  Apply([&] { bitmap_.assign(bitmap.begin(), bitmap.end()); });
}

platform::Size PictureBox::NaturalSize() const {
  const bool isBitmap =
      bitmap_.size() >= kShortestHeader && bitmap_[0] == std::byte{'B'} && bitmap_[1] == std::byte{'M'};
  return isBitmap ? platform::Size{Length(bitmap_, kWidthAt), Length(bitmap_, kHeightAt)} : platform::Size{};
}

}  // namespace toolkit::headless
