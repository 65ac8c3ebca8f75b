#include "host/document/RunRecord.h"

#include <unordered_set>

namespace host::document {

std::vector<std::int32_t> RunRecord::Elements() const {
  std::vector<std::int32_t> elements;
  std::unordered_set<std::int32_t> known;
  for (const auto& step : steps) {
    const auto* takes = std::get_if<RecordedTakes>(&step);
    if (!takes) continue;
    for (const auto id : takes->elements)
      if (known.insert(id).second) elements.push_back(id);
  }
  return elements;
}

std::string EndText(RunRecord::End end) {
  switch (end) {
    case RunRecord::End::kNone:
      break;
    case RunRecord::End::kFinished:
      return "finished";
    case RunRecord::End::kStopped:
      return "stopped";
    case RunRecord::End::kAborted:
      return "aborted";
    case RunRecord::End::kLost:
      return "lost";
  }
  return {};
}

}  // namespace host::document
