#include "host/report/TextLines.h"

#include <algorithm>
#include <utility>

#include "host/base/TextCells.h"
#include "host/base/VisibleText.h"

namespace host::report::text {
namespace {

/// Fills lines letter by letter.
class Breaker {
 public:
  explicit Breaker(std::size_t width) : width_(std::max<std::size_t>(width, 2)) {}

  std::vector<std::string> Break(const std::u32string& letters) {
    for (const auto letter : letters) {
      if (letter == '\n') {
        End();
        continue;
      }
      const auto columns = CellsOf(letter);
      if (columns_ + columns > width_) {
        Overflow(letter);
        if (letter == ' ') continue;  // replaced by the end of the line
      }
      if (letter == ' ') blank_ = line_.size() + 1;
      host::AppendUtf8(line_, letter);
      columns_ += columns;
    }
    End();
    return std::move(lines_);
  }

 private:
  /// Breaks at the last blank, which is dropped; a line without one is cut.
  void Overflow(char32_t next) {
    std::string rest;
    if (blank_ > 0 && next != ' ') {
      rest = line_.substr(blank_);
      line_.resize(blank_ - 1);
    }
    End();
    line_ = std::move(rest);
    columns_ = CellsOf(line_);
  }

  void End() {
    lines_.push_back(std::exchange(line_, {}));
    columns_ = blank_ = 0;
  }

  const std::size_t width_;
  std::vector<std::string> lines_;
  std::string line_;
  std::size_t columns_ = 0;
  std::size_t blank_ = 0;  ///< bytes of the line up to behind its last blank; 0 when there is none
};

}  // namespace

std::vector<std::string> Wrapped(std::string_view text, std::size_t width) {
  return Breaker(width).Break(host::CodePoints(text));
}

std::string Filled(const std::string& line, std::size_t width, orvik::platform::Alignment alignment) {
  using orvik::platform::Alignment;
  const auto rest = width - std::min(width, CellsOf(line));
  const auto left = alignment == Alignment::kLeft ? 0 : alignment == Alignment::kRight ? rest : rest / 2;
  return std::string(left, ' ') + line + std::string(rest - left, ' ');
}

std::string Indented(const std::vector<std::string>& lines, std::size_t indent) {
  std::string text;
  for (const auto& line : lines) text += std::string(indent, ' ') + line + "\n";
  return text;
}

}  // namespace host::report::text
