#pragma once

#include <span>
#include <string_view>

#include "resources/drawing/Bmp.h"
#include "resources/drawing/Canvas.h"

namespace draw {

/// One bitmap of the library.
struct Picture {
  std::string_view fileName;  ///< name of the file in resources/bitmaps
  Depth depth;
  Canvas (*draw)();
};

/// All bitmaps of the library, in the order of the table in resources/resources.cmake.
std::span<const Picture> Pictures();

}  // namespace draw
