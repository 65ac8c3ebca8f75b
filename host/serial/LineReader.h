#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host::serial {

/// Splits the bytes of a serial line into lines as they are received.
///
/// CR, LF and CR LF end a line; empty lines are ignored. A line of more than `kMaxLine` bytes (its end not
/// counted), or with a byte below 0x20 or with 0x7F, is invalid.
class LineReader {
 public:
  static constexpr std::size_t kMaxLine = 1024;

  /// Calls `onLine(std::string_view line, bool valid)` for each line that ends in `bytes`, in order. Only the
  /// first `kMaxLine` bytes of a longer line are kept.
  template <class OnLine>
  void Feed(std::string_view bytes, OnLine onLine) {
    for (const char c : bytes) {
      if (c == '\r' || c == '\n')
        End(onLine);
      else
        Add(c);
    }
  }

  /// Whether an incomplete line has been received.
  bool InLine() const { return !line_.empty(); }

 private:
  void Add(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F || line_.size() == kMaxLine) valid_ = false;
    if (line_.size() < kMaxLine) line_.push_back(c);
  }

  template <class OnLine>
  void End(OnLine& onLine) {
    if (line_.empty()) return;
    const std::string line = std::move(line_);
    const bool valid = valid_;
    line_.clear();
    valid_ = true;
    onLine(std::string_view(line), valid);
  }

  std::string line_;
  bool valid_ = true;
};

}  // namespace host::serial
