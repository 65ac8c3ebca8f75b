#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace sim {

/// Cuts a stream of bytes into lines. CR, LF and CR LF end a line; empty lines are ignored. A line of more
/// than `kMaxLine` bytes (its end not counted), or with a byte below 0x20 or with 0x7F, is dropped whole up
/// to its end and counted.
class LineReader {
 public:
  static constexpr std::size_t kMaxLine = 1024;

  /// Takes `bytes` and calls `onLine(std::string_view line)` for each good line that ends in them, in order,
  /// and `onDropped(std::string_view seen)` for each dropped one, with the at most `kMaxLine` bytes kept of
  /// it.
  template <typename OnLine, typename OnDropped>
  void Feed(std::string_view bytes, OnLine onLine, OnDropped onDropped) {
    for (const char c : bytes) {
      if (c != '\r' && c != '\n') {
        Add(c);
        continue;
      }
      if (bad_) {
        ++dropped_;
        onDropped(std::string_view(line_));
      } else if (!line_.empty()) {
        onLine(std::string_view(line_));
      }
      line_.clear();
      bad_ = false;
    }
  }

  /// Forgets the line that has begun.
  void Restart() {
    line_.clear();
    bad_ = false;
  }

  /// Lines dropped so far.
  std::uint64_t Dropped() const { return dropped_; }

 private:
  void Add(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F || line_.size() == kMaxLine) bad_ = true;
    if (line_.size() < kMaxLine) line_.push_back(c);
  }

  std::string line_;
  bool bad_ = false;
  std::uint64_t dropped_ = 0;
};

}  // namespace sim
