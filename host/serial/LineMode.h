#pragma once

#include <string>

#include "host/serial/LineSettings.h"

namespace bench {

/// Puts a terminal into raw mode with these settings, without flow control. A byte with a wrong parity bit
/// comes in as 0x00, so that its line is recognised as bad.
///
/// @param pseudo a pseudo-terminal: it drops the parity bit and may report that as an error
/// @return empty, or why the terminal does not take the settings
std::string SetLineMode(int descriptor, const LineSettings& settings, bool pseudo);

}  // namespace bench
