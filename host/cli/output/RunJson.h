#pragma once

#include <nlohmann/json_fwd.hpp>
#include <vector>

#include "host/document/RunRecord.h"

namespace host::cli {

/// What `show --run N --json` prints of a run.
nlohmann::ordered_json JsonOf(const document::RunRecord& run);

/// What `show --runs --json` prints: an object with the runs, oldest first, without their tests.
nlohmann::ordered_json JsonOf(const std::vector<document::RunRecord>& runs, const std::string& path);

}  // namespace host::cli
