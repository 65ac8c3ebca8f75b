#pragma once

#include <QColor>

#include "host/report/Report.h"

/// Measures and colours of the pages. Lengths are in twips, 20 of which are a point and 1,440 an inch: the
/// same as in the tables' markup, and fine enough to place letters exactly.
namespace host::report::drawing {

inline constexpr int kTwipsPerInch = 1440;
inline constexpr double kPoint = 20;

inline constexpr double kPageWidth = 11906, kPageHeight = 16838;  // A4
inline constexpr double kMargin = 1134;                           // 20 mm
inline constexpr double kUsable = kPageWidth - 2 * kMargin;
inline constexpr double kHeaderTop = 500;
inline constexpr double kBodyTop = 1940;
inline constexpr double kBodyBottom = kPageHeight - 1000;

// All texts have a contrast of at least 4.5 to 1 with their background.
inline const QColor kInk(0x1c, 0x23, 0x30);
inline const QColor kQuiet(0x56, 0x60, 0x72);
inline const QColor kLine(0xd0, 0xd6, 0xdf);
inline const QColor kAccent(0x1b, 0x4f, 0x8a);
inline const QColor kAllowed(0x9f, 0xb9, 0xd9);
inline const QColor kTrack(0xe3, 0xe7, 0xed);
/// The watermark: faint enough to read the text above it.
inline const QColor kFaint(0xf9, 0xf3, 0xe8);
/// A watermark that must not be overlooked.
inline const QColor kFaintStrong(0xe6, 0xe6, 0xe6);

inline QColor ColourOf(report::Standing standing) {
  switch (report::ToneOf(standing)) {
    case report::Tone::kGood:
      return {0x14, 0x69, 0x2f};
    case report::Tone::kBad:
      return {0xb3, 0x20, 0x1a};
    case report::Tone::kQuiet:
      return kQuiet;
    case report::Tone::kOpen:
      break;
  }
  return {0x85, 0x50, 0x00};
}

}  // namespace host::report::drawing
