#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace orvik {

/// A value of a kind known only at run time: empty, 32-bit integer, double, UTF-8 text, or list of texts.
using Variant = std::variant<std::monostate, std::int32_t, double, std::string, std::vector<std::string>>;

/// Whether the variant holds no value at all (an empty text is a value).
inline bool IsEmpty(const Variant& vValue) { return std::holds_alternative<std::monostate>(vValue); }

}  // namespace orvik
