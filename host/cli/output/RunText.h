#pragma once

#include <string>
#include <vector>

#include "host/document/RunRecord.h"
#include "host/report/RunOutcome.h"

namespace host::cli {

/// What `show --runs` prints: a line for each run, oldest first.
std::string RunsText(const std::vector<document::RunRecord>& runs);

/// What `show --run N` prints: the run as it was recorded.
/// A reading that no limit judged is not judged here either, though the plug-in stored it as passed.
/// @param count how many runs the document has
std::string RunText(const document::RunRecord& run, std::size_t count, const report::RunOutcomes& outcomes);

/// The run of that number. `InputError` naming the option when the document has none.
const document::RunRecord& FoundRun(const std::vector<document::RunRecord>& runs, std::int32_t number);

}  // namespace host::cli
