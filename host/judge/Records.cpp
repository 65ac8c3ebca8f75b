#include "host/judge/Records.h"

namespace host::judge {

Records::Records(const std::vector<document::RunRecord>* runs) {
  if (!runs) return;
  std::size_t step = 0;
  std::int32_t lastChanged = 0;
  for (const auto& run : *runs) {
    if (!run.intact || run.gapAfter) lastChanged = static_cast<std::int32_t>(&run - runs->data()) + 1;
    for (const auto& done : run.steps) {
      ++step;
      if (const auto* takes = std::get_if<document::RecordedTakes>(&done)) {
        for (const auto id : takes->elements) last_[id] = {&run, nullptr, step, false};
      } else {
        const auto& test = std::get<document::RecordedTest>(done);
        last_[test.element] = {&run, &test, step, false};
      }
    }
  }
  // A changed run may hide later records of any element, so no record up to it can be trusted.
  for (auto& [id, record] : last_) record.changed = record.run - runs->data() < lastChanged;
}

LastRecord Records::Of(std::int32_t element) const {
  const auto found = last_.find(element);
  return found == last_.end() ? LastRecord{} : found->second;
}

}  // namespace host::judge
