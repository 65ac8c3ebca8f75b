#pragma once

#include <memory>

#include "host/run/IOperator.h"
#include "host/run/StopRequest.h"
#include "platform/Event.h"
#include "platform/IApplication.h"

namespace bench {

/// Leaves the guide and the prompts to the person before the screen, and brings them to their end when a stop
/// is asked for.
class ScreenOperator final : public IOperator {
 public:
  ScreenOperator(std::shared_ptr<orvik::platform::IApplication> application, StopRequest& stop);

 private:
  void Shown();

  const std::shared_ptr<orvik::platform::IApplication> application_;
  StopRequest& stop_;
  orvik::platform::Subscription shown_;
  orvik::platform::Subscription stopAsked_;
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace bench
