#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/system/history/Operation.h"

namespace history {

/// Shortens a failing history: omits operations, and parts of runs, as long as it still fails.
/// @param fails plays a history from the beginning and returns the fault, or none
std::vector<Operation> Shrunk(
    std::vector<Operation> history,
    const std::function<std::optional<std::string>(const std::vector<Operation>&)>& fails);

}  // namespace history
