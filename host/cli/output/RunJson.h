#pragma once

#include <nlohmann/json_fwd.hpp>
#include <vector>

#include "host/document/RunRecord.h"

namespace bench {

/// What `show --run N --json` prints of a run.
nlohmann::ordered_json JsonOf(const RunRecord& run);

/// What `show --runs --json` prints: an object with the runs, oldest first, without their tests.
nlohmann::ordered_json JsonOf(const std::vector<RunRecord>& runs, const std::string& path);

}  // namespace bench
