#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "host/document/RunRecord.h"

namespace host::judge {

/// The last record of an element.
struct LastRecord {
  const document::RunRecord* run = nullptr;      ///< the last run that took it up; null when none did
  const document::RecordedTest* test = nullptr;  ///< null while that run has not finished it
  std::size_t step = 0;                          ///< place among the steps of all runs
  bool changed = false;  ///< this run or a later one was changed or removed by another program
};

/// The last record of each element, from the runs of a document.
class Records {
 public:
  /// @param runs must outlive this object; null for none
  explicit Records(const std::vector<document::RunRecord>* runs);

  LastRecord Of(std::int32_t element) const;

 private:
  std::unordered_map<std::int32_t, LastRecord> last_;
};

}  // namespace host::judge
