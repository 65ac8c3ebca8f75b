#pragma once

#include <chrono>
#include <cstdint>

namespace orvik::platform {

/// A window as a number; 0 means none.
using WindowHandle = std::uintptr_t;

/// A time on the platform's clock: monotonic and unrelated to wall-clock time.
using Time = std::chrono::microseconds;

/// Lengths on the screen are in twips: 1,440 an inch, 15 a pixel at 96 pixels an inch.
using Twips = std::int32_t;
inline constexpr Twips kTwipsPerPixel = 15;

struct Size {
  Twips width = 0;
  Twips height = 0;
  bool operator==(const Size&) const = default;
};

struct Rect {
  Twips left = 0;
  Twips top = 0;
  Twips width = 0;
  Twips height = 0;
  bool operator==(const Rect&) const = default;
};

/// A colour as 0x00BBGGRR, or a system colour as 0x80000000 plus its index.
using Color = std::uint32_t;
inline constexpr Color kRed = 255;
inline constexpr Color kWindowBackground = 0x80000005;
inline constexpr Color kWindowText = 0x80000008;
inline constexpr Color kButtonFace = 0x8000000F;

/// Codes of the keys that forms handle; letters and digits are their upper-case character.
enum Key : int { kKeyReturn = 13, kKeyEscape = 27, kKeySpace = 32, kKeyN = 78, kKeyY = 89 };

enum class Alignment { kLeft, kRight, kCentre };

}  // namespace orvik::platform
