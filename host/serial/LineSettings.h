#pragma once

#include <string>

namespace host::serial {

enum class Parity { kNone, kEven, kOdd, kMark, kSpace };
enum class StopBits { kOne, kOneAndAHalf, kTwo };

/// The format of a serial line.
struct LineSettings {
  int rate = 9600;  ///< bits a second
  Parity parity = Parity::kNone;
  int dataBits = 8;  ///< 5 to 8
  StopBits stopBits = StopBits::kOne;
  bool operator==(const LineSettings&) const = default;
};

/// Reads settings such as "9600,O,8,1": rate, parity (N none, E even, O odd, M mark, S space; either case),
/// data bits (5 to 8), stop bits (1, 1.5 or 2). `HostError` 5 names the invalid field.
LineSettings ParseLineSettings(const std::string& text);

}  // namespace host::serial
