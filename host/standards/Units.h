#pragma once

#include <optional>
#include <string>

namespace host::standards {

/// Converts a number to another unit of the same quantity: "0.3" in "Ohm" is "300" in "mOhm". Units are
/// ampere, volt and ohm with the prefixes n, µ (or u), m, k, M and G. None when the units are of different
/// quantities or unknown, or the text is not a number. In the same unit the text is returned unchanged.
std::optional<std::string> InUnit(const std::string& number, const std::string& from, const std::string& to);

/// The same for a number. In the same unit, even an unknown one, it is returned unchanged.
std::optional<double> InUnit(double number, const std::string& from, const std::string& to);

/// Whether both are known units of one quantity, such as "mOhm" and "MOhm", or the same text.
bool SameQuantity(const std::string& one, const std::string& other);

/// Whether both are the same unit; both Unicode letters for "µ" and "u" are equal.
bool SameUnit(const std::string& one, const std::string& other);

}  // namespace host::standards
