#pragma once

#include <string_view>

#include "platform/Types.h"

namespace bench::headless {

namespace platform = orvik::platform;

/// Sizes of text in twips: every character is as wide as the next.
inline constexpr platform::Twips kCharacterWidth = 90;
inline constexpr platform::Twips kLineHeight = 255;

/// Characters that are shown: UTF-8 characters, without the mark of the access key ("&&" shows one "&").
int ShownCharacters(std::string_view caption);

/// The size of a caption on one line.
platform::Size LineSize(std::string_view caption);

/// The size of a text that is broken into lines of at most 60 characters.
platform::Size WrappedSize(std::string_view text);

/// The character of the access key in upper case, 0 when the caption marks none.
int AccessKey(std::string_view caption);

}  // namespace bench::headless
