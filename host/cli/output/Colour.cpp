#include "host/cli/output/Colour.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace host::cli {

namespace {

/// Select graphic rendition, ECMA-48 8.3.117.
const char* RenditionOf(Tone tone) {
  switch (tone) {
    case Tone::kGood:
      return "\033[32m";
    case Tone::kBad:
      return "\033[1;31m";
    case Tone::kOpen:
      return "\033[33m";
    case Tone::kPlain:
      break;
  }
  return "";
}

}  // namespace

bool ColoursWanted(int descriptor) {
  // As programs agree on it: set and not empty.
  const char* none = std::getenv("NO_COLOR");
  const char* terminal = std::getenv("TERM");
  if (none && *none != '\0') return false;
  return isatty(descriptor) == 1 && terminal && std::string_view(terminal) != "dumb";
}

std::string Toned(const std::string& text, Tone tone, bool coloured) {
  if (!coloured || tone == Tone::kPlain) return text;
  return RenditionOf(tone) + text + "\033[0m";
}

}  // namespace host::cli
