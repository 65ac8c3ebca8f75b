#pragma once

#include <string>

namespace bench {

/// What a text means; its colour is never the only sign of that.
enum class Tone { kPlain, kGood, kBad, kOpen };

/// Whether colours are shown there: on a terminal, unless NO_COLOR is set or TERM is "dumb".
bool ColoursWanted(int descriptor);

/// The text in the colour of its tone, for a terminal; as it stands when colours are not wanted.
std::string Toned(const std::string& text, Tone tone, bool coloured);

}  // namespace bench
