#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "OrvikTypeLib/Conversions.h"

/// Small conversions of texts that the host's files and services share. None of them looks at the C locale.
namespace host {

/// The text with the letters A to Z in lower case.
std::string LowerAscii(std::string_view text);

/// Whether the texts are the same but for the case of the letters A to Z.
bool SameApartFromCase(std::string_view one, std::string_view other);

/// For tables whose keys are matched so.
struct HashApartFromCase {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const;
};
struct EqualApartFromCase {
  using is_transparent = void;
  bool operator()(std::string_view one, std::string_view other) const {
    return SameApartFromCase(one, other);
  }
};

/// The 32-bit number that the whole text represents (decimal, optional sign); none for anything else.
std::optional<std::int32_t> WholeNumber(std::string_view text);

using orvik::FiniteNumber;

/// The shortest text that reads back as the same number.
std::string ExactNumberText(double value);

/// The text with every byte that is not part of valid UTF-8, and every NUL, replaced by U+FFFD.
std::string ValidUtf8(std::string_view text);

/// The first byte at or behind `from` that `ValidUtf8` would replace; `npos` when there is none.
std::size_t InvalidUtf8(std::string_view text, std::size_t from = 0);

}  // namespace host
