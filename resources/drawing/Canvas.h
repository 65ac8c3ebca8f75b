#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace draw {

/// A colour of the screen, 8 bits a channel.
struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend bool operator==(const Colour&, const Colour&) = default;
};

/// A place on the canvas in pixels from the upper left corner; whole numbers are the borders between pixels.
/// Kept to sixteenths of a pixel when it is drawn.
struct Point {
  double x = 0;
  double y = 0;
};

/// A picture that shapes are painted on, later ones over earlier ones, with smoothed edges.
///
/// All coverage is decided in whole numbers (sixteenths of a pixel, 16 samples a pixel), so every compiler
/// and machine paints the same picture to the bit. What lies outside the canvas is cut off.
class Canvas {
 public:
  /// Makes a picture of `width` by `height` pixels, all of them `ground`.
  Canvas(int width, int height, Colour ground);

  int Width() const { return width_; }
  int Height() const { return height_; }
  /// The pixel `x` from the left and `y` from the top, both from 0 and inside the canvas.
  Colour At(int x, int y) const { return pixels_[Index(x, y)]; }

  /// Fills the rectangle between two opposite corners.
  void Rectangle(Point upperLeft, Point lowerRight, Colour colour);
  /// Fills a rectangle whose corners are rounded by `radius` pixels.
  void RoundRectangle(Point upperLeft, Point lowerRight, double radius, Colour colour);
  /// Fills a circle.
  void Disc(Point centre, double radius, Colour colour);
  /// Fills the area between two circles about one centre.
  void Ring(Point centre, double outer, double inner, Colour colour);
  /// Fills a simple polygon, given by its corners in either direction.
  void Polygon(std::span<const Point> corners, Colour colour);
  /// Draws a line through the points, `width` pixels wide, with round joints and ends.
  void Stroke(std::span<const Point> points, double width, Colour colour);
  /// Paints whole pixels from text rows: a '#' is painted, anything else left as it is; (x, y) is its upper
  /// left.
  void Glyph(int x, int y, std::span<const std::string_view> rows, Colour colour);

 private:
  struct Sample {
    std::int64_t x;
    std::int64_t y;
  };

  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }
  static std::int64_t Sixteenths(double pixels);
  static Sample ToSample(Point point);
  template <typename Inside>
  void Paint(Colour colour, const Inside& isInside);

  int width_;
  int height_;
  std::vector<Colour> pixels_;
};

}  // namespace draw
