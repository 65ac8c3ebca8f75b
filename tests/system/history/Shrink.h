#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/system/history/Operation.h"

namespace history {

/// A shorter history in which something still goes wrong: operations are left out, and what is not needed of
/// runs, for as long as that holds.
/// @param fails plays a history from the beginning; what goes wrong, or none
std::vector<Operation> Shrunk(
    std::vector<Operation> history,
    const std::function<std::optional<std::string>(const std::vector<Operation>&)>& fails);

}  // namespace history
