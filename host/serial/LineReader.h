#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace bench {

/// Cuts the bytes of a serial line into lines, as they come in.
///
/// CR, LF and CR LF end a line; empty lines are ignored. A line of more than `kMaxLine` bytes (its end not
/// counted), or with a byte below 0x20 or with 0x7F, is bad: it is handed out as such, whole up to its end.
class LineReader {
 public:
  static constexpr std::size_t kMaxLine = 1024;

  /// Takes `bytes` and calls `onLine(std::string_view line, bool good)` for each line that ends in them, in
  /// order. Of an overlong line the first `kMaxLine` bytes are kept.
  template <class OnLine>
  void Feed(std::string_view bytes, OnLine onLine) {
    for (const char c : bytes) {
      if (c == '\r' || c == '\n')
        End(onLine);
      else
        Add(c);
    }
  }

  /// Whether a line has begun that has not ended.
  bool InLine() const { return !line_.empty(); }

 private:
  void Add(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F || line_.size() == kMaxLine) good_ = false;
    if (line_.size() < kMaxLine) line_.push_back(c);
  }

  template <class OnLine>
  void End(OnLine& onLine) {
    if (line_.empty()) return;
    const std::string line = std::move(line_);
    const bool good = good_;
    line_.clear();
    good_ = true;
    onLine(std::string_view(line), good);
  }

  std::string line_;
  bool good_ = true;
};

}  // namespace bench
