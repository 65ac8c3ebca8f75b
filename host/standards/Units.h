#pragma once

#include <optional>
#include <string>

namespace bench {

/// The number told in another unit of the same quantity: "0.3" in "Ohm" is "300" in "mOhm". Units are ampere,
/// volt and ohm with the prefixes n, µ (or u), m, k, M and G. None when the units are of different
/// quantities, one of them is not known, or the text is no number. In the same unit the text stays as it is.
std::optional<std::string> InUnit(const std::string& number, const std::string& from, const std::string& to);

/// The same for a number. In the same unit it stays as it is, also in one that is not known.
std::optional<double> InUnit(double number, const std::string& from, const std::string& to);

/// Whether both are known units of one quantity, such as "mOhm" and "MOhm", or the same text.
bool SameQuantity(const std::string& one, const std::string& other);

/// Whether both are the same unit; "µA" is the same with either letter that looks like it, and as "uA".
bool SameUnit(const std::string& one, const std::string& other);

}  // namespace bench
