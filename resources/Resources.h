#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace keld {

/// The bytes of the library's bitmap with the key `sKey`: a whole Windows bitmap file.
///
/// Upper and lower case letters (A to Z) of the key are the same. The bytes are read-only data that live as
/// long as the library is loaded. There is no error: a key without a bitmap, the empty one included, gives an
/// empty span.
std::span<const std::byte> FindResource(std::string_view sKey);

}  // namespace keld
