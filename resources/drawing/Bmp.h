#pragma once

#include <filesystem>
#include <string>

#include "resources/drawing/Canvas.h"

namespace draw {

/// How a picture's pixels are stored.
enum class Depth {
  kPalette8,  ///< 8 bits a pixel, a colour table with the colours in use (at most 256)
  kTrue24,    ///< 24 bits a pixel, no colour table
};

/// The bytes of a Windows bitmap file: file header, 40-byte information header, bottom row first, not
/// compressed. Throws std::runtime_error when a palette picture holds more than 256 colours.
std::string EncodeBmp(const Canvas& canvas, Depth depth);

/// Writes `bytes` as the file `path`, replacing an old one. Throws std::runtime_error naming the file when
/// that fails.
void WriteFile(const std::filesystem::path& path, const std::string& bytes);

}  // namespace draw
