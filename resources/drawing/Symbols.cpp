#include "resources/drawing/Symbols.h"

#include <array>
#include <string_view>
#include <vector>

namespace draw {
namespace {

using namespace colours;

// A filled box given by its corner and size.
void Box(Canvas& canvas, int x, int y, int width, int height, Colour colour) {
  canvas.Rectangle({x + 0.0, y + 0.0}, {x + width + 0.0, y + height + 0.0}, colour);
}

// Moves a shape's points, given from its own corner, to the position of the shape.
std::vector<Point> Moved(std::vector<Point> points, int x, int y) {
  for (Point& point : points) point = {point.x + x, point.y + y};
  return points;
}

}  // namespace

void Earth(Canvas& canvas, int x, int y) {
  Box(canvas, x + 5, y, 2, 7, kEarth);
  Box(canvas, x, y + 6, 12, 2, kEarth);
  Box(canvas, x + 2, y + 9, 8, 2, kEarth);
  Box(canvas, x + 4, y + 12, 4, 2, kEarth);
}

void ProtectiveEarth(Canvas& canvas, int x, int y) {
  const Point centre{x + 8.0, y + 8.0};
  canvas.Disc(centre, 8, kEarth);
  canvas.Disc(centre, 6.75, kWhite);
  Box(canvas, x + 7, y + 3, 2, 5, kEarth);
  Box(canvas, x + 3, y + 7, 10, 1, kEarth);
  Box(canvas, x + 5, y + 9, 6, 1, kEarth);
  Box(canvas, x + 7, y + 11, 2, 1, kEarth);
}

void Person(Canvas& canvas, int x, int y) {
  static constexpr std::array<std::string_view, 16> kRows = {"...###...",  //
                                                             "..#####..",  //
                                                             "..#####..",  //
                                                             "...###...",  //
                                                             ".........",  //
                                                             ".#######.",  //
                                                             "#########",  //
                                                             "#.#####.#",  //
                                                             "#.#####.#",  //
                                                             "#.#####.#",  //
                                                             "#.#####.#",  //
                                                             "..##.##..",  //
                                                             "..##.##..",  //
                                                             "..##.##..",  //
                                                             "..##.##..",  //
                                                             "..##.##.."};
  canvas.Glyph(x, y, kRows, kPerson);
}

void Equipment(Canvas& canvas, int x, int y) {
  Box(canvas, x, y, 11, 12, kEquipment);
  Box(canvas, x + 1, y + 1, 9, 10, kEquipmentFace);
  Trace(canvas, x + 2, y + 3, kEquipment);
}

void Trace(Canvas& canvas, int x, int y, Colour colour) {
  static constexpr std::array<std::string_view, 6> kRows = {"..#....",  //
                                                            "..#....",  //
                                                            ".#.#...",  //
                                                            "##.#.##",  //
                                                            "....#..",  //
                                                            "....#.."};
  canvas.Glyph(x, y, kRows, colour);
}

void ArrowRight(Canvas& canvas, int x, int y, int length, Colour colour) {
  static constexpr std::array<std::string_view, 8> kHead = {"#...",  //
                                                            "##..",  //
                                                            "###.",  //
                                                            "####",  //
                                                            "####",  //
                                                            "###.",  //
                                                            "##..",  //
                                                            "#..."};
  Box(canvas, x, y + 3, length - 4, 2, colour);
  canvas.Glyph(x + length - 4, y, kHead, colour);
}

void MainsSource(Canvas& canvas, int x, int y) {
  const Point centre{x + 7.5, y + 7.5};
  canvas.Disc(centre, 7.5, kMains);
  canvas.Disc(centre, 6.25, kWhite);
  const std::vector<Point> sine = Moved({{3, 8},
                                         {3.5, 6.25},
                                         {4.5, 5.25},
                                         {5.75, 5.5},
                                         {6.75, 6.75},
                                         {7.5, 7.5},
                                         {8.25, 8.25},
                                         {9.25, 9.5},
                                         {10.5, 9.75},
                                         {11.5, 8.75},
                                         {12, 7}},
                                        x, y);
  canvas.Stroke(sine, 1.5, kMains);
}

void LetterV(Canvas& canvas, int x, int y, Colour colour) {
  const std::vector<Point> letter =
      Moved({{0, 0}, {2.5, 0}, {5.5, 8}, {8.5, 0}, {11, 0}, {6.75, 11}, {4.25, 11}}, x, y);
  canvas.Polygon(letter, colour);
}

void LetterOmega(Canvas& canvas, int x, int y, Colour colour) {
  static constexpr std::array<std::string_view, 12> kRows = {"...######...",  //
                                                             "..########..",  //
                                                             ".###....###.",  //
                                                             "###......###",  //
                                                             "##........##",  //
                                                             "##........##",  //
                                                             "##........##",  //
                                                             "###......###",  //
                                                             ".##......##.",  //
                                                             "..##....##..",  //
                                                             "#####..#####",  //
                                                             "#####..#####"};
  canvas.Glyph(x, y, kRows, colour);
}

void MegOhm(Canvas& canvas, int x, int y, Colour colour) {
  static constexpr std::array<std::string_view, 10> kRows = {"##...##...####..",  //
                                                             "##...##..######.",  //
                                                             "###.###.##....##",  //
                                                             "#######.##....##",  //
                                                             "##.#.##.##....##",  //
                                                             "##.#.##.##....##",  //
                                                             "##...##.##....##",  //
                                                             "##...##..##..##.",  //
                                                             "##...##.###..###",  //
                                                             "##...##.###..###"};
  canvas.Glyph(x, y, kRows, colour);
}

void Insulation(Canvas& canvas, int x, int y) {
  Box(canvas, x, y, 3, 14, kMains);
  Box(canvas, x + 3, y, 6, 14, kFolder);
  for (int row = 0; row < 14; ++row) {
    for (int column = 0; column < 6; ++column) {
      if ((row + column) % 4 == 0) Box(canvas, x + 3 + column, y + row, 1, 1, kFolderEdge);
    }
  }
  Box(canvas, x + 9, y, 3, 14, kEquipment);
}

void Sheet(Canvas& canvas, int x, int y) {
  Box(canvas, x, y, 11, 13, kInk);
  Box(canvas, x + 1, y + 1, 9, 11, kSheet);
  Box(canvas, x + 2, y + 2, 5, 1, kEquipment);
  Trace(canvas, x + 2, y + 5, kCurrent);
}

void Folder(Canvas& canvas, int x, int y) {
  canvas.RoundRectangle({x + 0.0, y + 2.0}, {x + 6.0, y + 7.0}, 1, kFolderEdge);
  canvas.RoundRectangle({x + 0.0, y + 4.0}, {x + 15.0, y + 14.0}, 1, kFolderEdge);
  Box(canvas, x + 3, y, 9, 8, kInk);
  Box(canvas, x + 4, y + 1, 7, 7, kSheet);
  Trace(canvas, x + 4, y + 1, kCurrent);
  Box(canvas, x, y + 7, 15, 1, kFolderEdge);
  Box(canvas, x + 1, y + 8, 13, 5, kFolder);
}

}  // namespace draw
