#pragma once

#include <cstdint>
#include <limits>

namespace CLI {
class Option;
}  // namespace CLI

namespace host::cli {

/// Makes an option or argument accept whole numbers only, in decimal digits: "010" is ten. Anything else is
/// an `InputError` with the name of the option, the text, and what to write instead.
/// @param highest of the numbers, and with a minus sign the lowest
/// @returns the option
CLI::Option* WholeNumbers(CLI::Option* option,
                          std::int64_t highest = std::numeric_limits<std::int32_t>::max());

}  // namespace host::cli
