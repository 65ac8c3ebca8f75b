#pragma once

#include <string>
#include <vector>

#include "host/document/RunRecord.h"
#include "host/report/RunOutcome.h"

namespace bench {

/// What `show --runs` prints: a line for each run, oldest first.
std::string RunsText(const std::vector<RunRecord>& runs);

/// What `show --run N` prints: the run as it was recorded.
/// A reading that no limit judged is not judged here either, though the plug-in stored it as passed.
/// @param count how many runs the document has
std::string RunText(const RunRecord& run, std::size_t count, const RunOutcomes& outcomes);

/// The run of that number. `InputError` naming the option when the document has none.
const RunRecord& FoundRun(const std::vector<RunRecord>& runs, std::int32_t number);

}  // namespace bench
