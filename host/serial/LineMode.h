#pragma once

#include <string>

#include "host/serial/LineSettings.h"

namespace host::serial {

/// Puts a terminal into raw mode with these settings, without flow control. A byte with a parity error is
/// received as 0x00, which makes its line invalid.
///
/// @param pseudo `descriptor` is a pseudo-terminal, which drops the parity bit and may report an error
/// @return empty, or why the settings cannot be used
std::string SetLineMode(int descriptor, const LineSettings& settings, bool pseudo);

}  // namespace host::serial
