#include "resources/drawing/Tester.h"

#include <array>
#include <string_view>

#include "resources/drawing/Symbols.h"

namespace draw {
namespace {

using namespace colours;

constexpr Colour kScreen{196, 240, 204};
constexpr Colour kHousingLight{88, 136, 204};

// The tester's front from (x, y), 30 by 22: display with a trace, four sockets, two feet.
void Front(Canvas& canvas, int x, int y) {
  const auto at = [x, y](double right, double down) { return Point{x + right, y + down}; };
  canvas.RoundRectangle(at(3, 18), at(9, 22), 1, kInk);
  canvas.RoundRectangle(at(21, 18), at(27, 22), 1, kInk);
  canvas.RoundRectangle(at(0, 0), at(30, 20), 2.5, kInk);
  canvas.RoundRectangle(at(1, 1), at(29, 19), 1.5, kHousingLight);
  canvas.RoundRectangle(at(1, 2), at(29, 19), 1.5, kEquipment);
  canvas.Rectangle(at(3, 3), at(19, 12), kInk);
  canvas.Rectangle(at(4, 4), at(18, 11), kScreen);
  static constexpr std::array<std::string_view, 6> kTrace = {"....##........",  //
                                                             "....##........",  //
                                                             "...#.##.......",  //
                                                             "####..#..#####",  //
                                                             "......##.#....",  //
                                                             ".......##....."};
  canvas.Glyph(x + 4, y + 5, kTrace, kEarth);
  canvas.Disc(at(24, 7.5), 3.5, kInk);
  canvas.Disc(at(24, 7.5), 2.5, kSheet);
  const std::array<Point, 2> pointer = {at(24, 7.5), at(25.5, 5.5)};
  canvas.Stroke(pointer, 1.25, kCurrent);
  constexpr std::array<Colour, 4> kSockets = {kCurrent, kInk, kFolder, kEarth};
  for (std::size_t i = 0; i < kSockets.size(); ++i) {
    const Point socket = at(6 + 6 * static_cast<double>(i), 15.5);
    canvas.Disc(socket, 2, kWhite);
    canvas.Disc(socket, 1.5, kSockets[i]);
  }
}

}  // namespace

Canvas SmallTester() {
  Canvas canvas(16, 16, kButtonGrey);
  canvas.Rectangle({2, 13}, {5, 15}, kInk);
  canvas.Rectangle({11, 13}, {14, 15}, kInk);
  canvas.RoundRectangle({0, 1}, {16, 14}, 1.5, kInk);
  canvas.Rectangle({1, 2}, {15, 13}, kEquipment);
  canvas.Rectangle({2, 3}, {14, 9}, kScreen);
  static constexpr std::array<std::string_view, 5> kTrace = {"....#.......",  //
                                                             "....#.......",  //
                                                             "####.#.#####",  //
                                                             ".....#.#....",  //
                                                             "......#....."};
  canvas.Glyph(2, 3, kTrace, kEarth);
  canvas.Rectangle({3, 10}, {5, 12}, kCurrent);
  canvas.Rectangle({7, 10}, {9, 12}, kFolder);
  canvas.Rectangle({11, 10}, {13, 12}, kWhite);
  return canvas;
}

Canvas LargeTester() {
  Canvas canvas(32, 32, kButtonGrey);
  Front(canvas, 1, 5);
  return canvas;
}

Canvas TesterTab() {
  Canvas canvas(32, 34, kButtonGrey);
  Front(canvas, 1, 0);
  // The name plate below: type, serial number and firmware are what the pane shows.
  canvas.Rectangle({4, 24}, {28, 33}, kInk);
  canvas.Rectangle({5, 25}, {27, 32}, kSheet);
  for (int line = 0; line < 3; ++line) {
    const double y = 26 + 2.0 * line;
    canvas.Rectangle({7, y}, {11, y + 1}, kEquipment);
    canvas.Rectangle({13, y}, {line == 1 ? 22.0 : 25.0, y + 1}, kInk);
  }
  return canvas;
}

}  // namespace draw
