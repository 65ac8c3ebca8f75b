#pragma once

#include <cstddef>
#include <string_view>

namespace host::xml {

/// The first reference by number that names no character ("&#0;", "&#xD800;", "&#x110000;"), from the byte
/// `from` on; `npos` when there is none. The text is that of the file: references in comments and in
/// CDATA sections, where they mean themselves, are found as well.
///
/// References to control characters are none of these: they are how such characters are saved.
std::size_t ReferenceToNothing(std::string_view text, std::size_t from = 0);

}  // namespace host::xml
