#include "resources/drawing/Canvas.h"

#include <algorithm>
#include <cmath>

namespace draw {
namespace {

constexpr int kUnit = 16;                     // sixteenths of a pixel
constexpr int kSamplesASide = 4;              // samples along each side of a pixel
constexpr int kStep = kUnit / kSamplesASide;  // distance between samples
constexpr int kSamples = kSamplesASide * kSamplesASide;

std::uint8_t Mix(std::uint8_t below, std::uint8_t above, int covered) {
  return static_cast<std::uint8_t>((below * (kSamples - covered) + above * covered + kSamples / 2) /
                                   kSamples);
}

}  // namespace

Canvas::Canvas(int width, int height, Colour ground)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), ground) {}

std::int64_t Canvas::Sixteenths(double pixels) { return std::llround(pixels * kUnit); }

Canvas::Sample Canvas::ToSample(Point point) { return {Sixteenths(point.x), Sixteenths(point.y)}; }

template <typename Inside>
void Canvas::Paint(Colour colour, const Inside& isInside) {
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      int covered = 0;
      for (int sample = 0; sample < kSamples; ++sample) {
        const Sample at{x * kUnit + kStep / 2 + kStep * (sample % kSamplesASide),
                        y * kUnit + kStep / 2 + kStep * (sample / kSamplesASide)};
        covered += isInside(at) ? 1 : 0;
      }
      Colour& pixel = pixels_[Index(x, y)];
      pixel = {Mix(pixel.red, colour.red, covered), Mix(pixel.green, colour.green, covered),
               Mix(pixel.blue, colour.blue, covered)};
    }
  }
}

void Canvas::Rectangle(Point upperLeft, Point lowerRight, Colour colour) {
  RoundRectangle(upperLeft, lowerRight, 0, colour);
}

void Canvas::RoundRectangle(Point upperLeft, Point lowerRight, double radius, Colour colour) {
  const Sample low = ToSample(upperLeft);
  const Sample high = ToSample(lowerRight);
  const std::int64_t corner = Sixteenths(radius);
  Paint(colour, [=](Sample at) {
    if (at.x < low.x || at.x > high.x || at.y < low.y || at.y > high.y) return false;
    // Distance into the corner square, 0 beside it.
    const std::int64_t dx = std::max({low.x + corner - at.x, at.x - (high.x - corner), std::int64_t{0}});
    const std::int64_t dy = std::max({low.y + corner - at.y, at.y - (high.y - corner), std::int64_t{0}});
    return dx * dx + dy * dy <= corner * corner;
  });
}

void Canvas::Disc(Point centre, double radius, Colour colour) {
  const Sample middle = ToSample(centre);
  const std::int64_t reach = Sixteenths(radius);
  Paint(colour, [=](Sample at) {
    const std::int64_t dx = at.x - middle.x;
    const std::int64_t dy = at.y - middle.y;
    return dx * dx + dy * dy <= reach * reach;
  });
}

void Canvas::Ring(Point centre, double outer, double inner, Colour colour) {
  const Sample middle = ToSample(centre);
  const std::int64_t far = Sixteenths(outer);
  const std::int64_t near = Sixteenths(inner);
  Paint(colour, [=](Sample at) {
    const std::int64_t dx = at.x - middle.x;
    const std::int64_t dy = at.y - middle.y;
    const std::int64_t square = dx * dx + dy * dy;
    return square <= far * far && square >= near * near;
  });
}

void Canvas::Polygon(std::span<const Point> corners, Colour colour) {
  std::vector<Sample> path;
  for (const Point& corner : corners) path.push_back(ToSample(corner));
  Paint(colour, [&path](Sample at) {
    // Even-odd rule: count the sides that a ray to the right crosses.
    bool inside = false;
    for (std::size_t i = 0, j = path.size() - 1; i < path.size(); j = i++) {
      const Sample& from = path[j];
      const Sample& to = path[i];
      if ((from.y > at.y) == (to.y > at.y)) continue;
      const std::int64_t side = (to.x - from.x) * (at.y - from.y) - (to.y - from.y) * (at.x - from.x);
      if ((side > 0) == (to.y > from.y)) inside = !inside;
    }
    return inside;
  });
}

void Canvas::Stroke(std::span<const Point> points, double width, Colour colour) {
  std::vector<Sample> path;
  for (const Point& point : points) path.push_back(ToSample(point));
  const std::int64_t reach = Sixteenths(width / 2);
  Paint(colour, [&path, reach](Sample at) {
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
      const std::int64_t dx = path[i + 1].x - path[i].x;
      const std::int64_t dy = path[i + 1].y - path[i].y;
      const std::int64_t px = at.x - path[i].x;
      const std::int64_t py = at.y - path[i].y;
      const std::int64_t length = dx * dx + dy * dy;
      const std::int64_t along = px * dx + py * dy;
      if (along > 0 && along < length) {
        const std::int64_t across = px * dy - py * dx;
        if (across * across <= reach * reach * length) return true;
        continue;
      }
      const Sample& end = along <= 0 ? path[i] : path[i + 1];
      const std::int64_t ex = at.x - end.x;
      const std::int64_t ey = at.y - end.y;
      if (ex * ex + ey * ey <= reach * reach) return true;
    }
    return false;
  });
}

void Canvas::Glyph(int x, int y, std::span<const std::string_view> rows, Colour colour) {
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < rows[row].size(); ++column) {
      const int px = x + static_cast<int>(column);
      const int py = y + static_cast<int>(row);
      const bool onCanvas = px >= 0 && px < width_ && py >= 0 && py < height_;
      if (rows[row][column] == '#' && onCanvas) pixels_[Index(px, py)] = colour;
    }
  }
}

}  // namespace draw
