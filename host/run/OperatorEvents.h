#pragma once

#include <memory>

#include "host/run/IOperator.h"
#include "host/run/StopRequest.h"
#include "platform/IApplication.h"

namespace host::run {

/// Owns the operator of a run, and reports windows and a requested stop to it for as long as it lives.
class OperatorEvents {
 public:
  /// @param stop must outlive this object
  OperatorEvents(std::shared_ptr<orvik::platform::IApplication> application, StopRequest& stop,
                 std::unique_ptr<IOperator> runOperator);

 private:
  const std::shared_ptr<orvik::platform::IApplication> application_;
  /// Shared, so that a posted call can find out that the run is over.
  const std::shared_ptr<IOperator> operator_;
  orvik::platform::Subscription shown_;
  orvik::platform::Subscription stopRequested_;
};

}  // namespace host::run
