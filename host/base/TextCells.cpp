#include "host/base/TextCells.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

struct Range {
  char32_t first, last;
};

constexpr std::array<Range, 6> kNoCell{{{0x0300, 0x036F},
                                        {0x1AB0, 0x1AFF},
                                        {0x1DC0, 0x1DFF},
                                        {0x200B, 0x200F},
                                        {0x20D0, 0x20FF},
                                        {0xFE00, 0xFE0F}}};

constexpr std::array<Range, 14> kTwoCells{{{0x1100, 0x115F},
                                           {0x2E80, 0x303E},
                                           {0x3041, 0x4DBF},
                                           {0x4E00, 0xA4CF},
                                           {0xA960, 0xA97F},
                                           {0xAC00, 0xD7A3},
                                           {0xF900, 0xFAFF},
                                           {0xFE10, 0xFE19},
                                           {0xFE30, 0xFE6F},
                                           {0xFF00, 0xFF60},
                                           {0xFFE0, 0xFFE6},
                                           {0x1F300, 0x1F64F},
                                           {0x1F900, 0x1F9FF},
                                           {0x20000, 0x3FFFD}}};

template <std::size_t Count>
bool Holds(const std::array<Range, Count>& ranges, char32_t letter) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [letter](const Range& range) { return range.first <= letter && letter <= range.last; });
}

/// Takes the first letter off the text; an invalid byte is returned as U+FFFD.
char32_t TakeLetter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  text.remove_prefix(1);
  if (lead < 0x80) return lead;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  const auto goesOn = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
  if (more == 0 || text.size() < more ||
      !std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(more), goesOn))
    return 0xFFFD;
  char32_t letter = lead & (0x3FU >> more);
  for (std::size_t i = 0; i < more; ++i)
    letter = (letter << 6) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  text.remove_prefix(more);
  return letter;
}

}  // namespace

std::size_t CellsOf(char32_t letter) { return Holds(kNoCell, letter) ? 0 : Holds(kTwoCells, letter) ? 2 : 1; }

std::size_t CellsOf(std::string_view text) {
  std::size_t cells = 0;
  while (!text.empty()) cells += CellsOf(TakeLetter(text));
  return cells;
}

std::string CutToCells(const std::string& text, std::size_t cells) {
  std::string_view rest = text;
  std::size_t taken = 0;
  while (!rest.empty()) {
    auto after = rest;
    taken += CellsOf(TakeLetter(after));
    if (taken > cells) break;
    rest = after;
  }
  return text.substr(0, text.size() - rest.size());
}

}  // namespace host
