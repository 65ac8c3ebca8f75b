#pragma once

#include <string>

namespace host::cli {

/// The meaning of a text. Its colour is never the only sign.
enum class Tone { kPlain, kGood, kBad, kOpen };

/// Whether colours are shown there: on a terminal, unless NO_COLOR is set or TERM is "dumb".
bool ColoursWanted(int descriptor);

/// The text in the colour of its tone, for a terminal; unchanged when colours are not wanted.
std::string Toned(const std::string& text, Tone tone, bool coloured);

}  // namespace host::cli
