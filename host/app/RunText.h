#pragma once

#include <string>
#include <vector>

#include "host/app/RunOutcome.h"
#include "host/document/RunRecord.h"

namespace bench {

/// "finished", "stopped", "aborted", "tester lost", "interrupted"; in the reader's language.
std::string EndWord(const RunRecord& run);

/// How many of the elements that the run took up it finished with a result, and how many there are.
struct RunProgressCount {
  std::size_t finished = 0;
  std::size_t taken = 0;
};
RunProgressCount CountOf(const RunRecord& run);

/// What `show --runs` prints: a line for each run, oldest first.
std::string RunsText(const std::vector<RunRecord>& runs);

/// What `show --run N` prints: the run as it was done, whatever counts now.
/// A reading that no limit judged is not judged here either, though the plug-in stored it as passed.
/// @param count how many runs the document has
std::string RunText(const RunRecord& run, std::size_t count, const RunOutcomes& outcomes);

/// The run of that number. `InputError` naming the option when the document has none.
const RunRecord& FoundRun(const std::vector<RunRecord>& runs, std::int32_t number);

}  // namespace bench
