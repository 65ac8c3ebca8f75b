#pragma once

#include <string_view>

#include "platform/Types.h"

namespace toolkit::headless {

namespace platform = orvik::platform;

/// Sizes of text in twips: all characters have the same width.
inline constexpr platform::Twips kCharacterWidth = 90;
inline constexpr platform::Twips kLineHeight = 255;

/// The number of visible UTF-8 characters, without the access key mark ("&&" shows one "&").
int ShownCharacters(std::string_view caption);

/// The size of a caption on one line.
platform::Size LineSize(std::string_view caption);

/// The size of a text that is broken into lines of at most 60 characters.
platform::Size WrappedSize(std::string_view text);

/// The access key in upper case, 0 if the caption has none.
int AccessKey(std::string_view caption);

}  // namespace toolkit::headless
