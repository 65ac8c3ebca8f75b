#include "resources/drawing/Bmp.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace draw {
namespace {

constexpr std::uint32_t kHeaders = 14 + 40;      // file header and information header
constexpr std::uint32_t kPixelsPerMetre = 3780;  // 96 pixels an inch

void Put(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFFU));
}

void PutColour(std::string& bytes, Colour colour) {
  bytes.push_back(static_cast<char>(colour.blue));
  bytes.push_back(static_cast<char>(colour.green));
  bytes.push_back(static_cast<char>(colour.red));
}

std::vector<Colour> ColoursInUse(const Canvas& canvas) {
  std::vector<Colour> colours;
  for (int y = 0; y < canvas.Height(); ++y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      const Colour colour = canvas.At(x, y);
      if (std::find(colours.begin(), colours.end(), colour) == colours.end()) colours.push_back(colour);
    }
  }
  return colours;
}

std::string Rows(const Canvas& canvas, Depth depth, const std::vector<Colour>& palette) {
  std::string rows;
  for (int y = canvas.Height() - 1; y >= 0; --y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      const Colour colour = canvas.At(x, y);
      if (depth == Depth::kTrue24) {
        PutColour(rows, colour);
      } else {
        rows.push_back(
            static_cast<char>(std::find(palette.begin(), palette.end(), colour) - palette.begin()));
      }
    }
    while (rows.size() % 4 != 0) rows.push_back('\0');
  }
  return rows;
}

}  // namespace

std::string EncodeBmp(const Canvas& canvas, Depth depth) {
  std::vector<Colour> palette;
  if (depth == Depth::kPalette8) {
    palette = ColoursInUse(canvas);
    if (palette.size() > 256) {
      throw std::runtime_error("a palette picture holds " + std::to_string(palette.size()) +
                               " colours, at most 256 can be stored: use fewer");
    }
  }
  const std::string rows = Rows(canvas, depth, palette);
  const auto colours = static_cast<std::uint32_t>(palette.size());
  const std::uint32_t start = kHeaders + 4 * colours;

  std::string bytes = "BM";
  Put(bytes, start + static_cast<std::uint32_t>(rows.size()), 4);
  Put(bytes, 0, 4);
  Put(bytes, start, 4);
  Put(bytes, 40, 4);
  Put(bytes, static_cast<std::uint32_t>(canvas.Width()), 4);
  Put(bytes, static_cast<std::uint32_t>(canvas.Height()), 4);
  Put(bytes, 1, 2);
  Put(bytes, depth == Depth::kTrue24 ? 24 : 8, 2);
  Put(bytes, 0, 4);
  Put(bytes, static_cast<std::uint32_t>(rows.size()), 4);
  Put(bytes, kPixelsPerMetre, 4);
  Put(bytes, kPixelsPerMetre, 4);
  Put(bytes, colours, 4);
  Put(bytes, 0, 4);
  for (const Colour& colour : palette) {
    PutColour(bytes, colour);
    bytes.push_back('\0');
  }
  return bytes + rows;
}

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file)
    throw std::runtime_error(path.string() + ": cannot be written; is the folder there and writable?");
}

}  // namespace draw
