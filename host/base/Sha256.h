#pragma once

#include <string>
#include <string_view>

namespace bench {

/// The SHA-256 digest (FIPS 180-4) of the bytes, in 64 hexadecimal digits.
std::string Sha256(std::string_view bytes);

}  // namespace bench
