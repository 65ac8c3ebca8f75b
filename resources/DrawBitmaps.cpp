// Draws every bitmap of the library into a folder. The files in resources/bitmaps are its output; run it
// again after a change of a drawing: draw-bitmaps resources/bitmaps

#include <cstdio>
#include <exception>
#include <filesystem>

#include "resources/drawing/Pictures.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: draw-bitmaps FOLDER    (draws the library's bitmaps into the folder)\n", stderr);
    return 3;
  }
  try {
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    for (const draw::Picture& picture : draw::Pictures()) {
      draw::WriteFile(folder / picture.fileName, draw::EncodeBmp(picture.draw(), picture.depth));
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "draw-bitmaps: %s\n", error.what());
    return 3;
  }
  return 0;
}
