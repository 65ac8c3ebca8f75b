#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "OrvikTypeLib/ITestElement.h"
#include "host/run/DoubtTracker.h"

namespace bench {

/// Holds results against what is known of them: one that changes after its element has finished, and a
/// sequence that passes although not all that stands below it counts, are doubtful.
class ResultWatch {
 public:
  explicit ResultWatch(DoubtTracker& doubts) : doubts_(doubts) {}

  /// The element has finished, with the result that it has now.
  void Finished(const std::shared_ptr<orvik::ITestElement>& element);
  /// The element's run is over and its session closed: notes what speaks against its result and those below.
  void Settle(const std::shared_ptr<orvik::ITestElement>& element);

 private:
  void CompareWithFinish(const orvik::ITestElement& element);
  void CompareWithChildren(const std::shared_ptr<orvik::ITestElement>& element);
  bool Counts(const orvik::ITestElement& element) const;

  DoubtTracker& doubts_;
  std::map<std::int32_t, std::int32_t> finishedAs_;  ///< element to status
};

}  // namespace bench
