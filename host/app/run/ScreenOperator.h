#pragma once

#include <memory>

#include "host/run/IOperator.h"
#include "host/run/StopRequest.h"
#include "host/toolkit/headless/Application.h"

namespace bench {

/// Leaves the guide and the prompts to the person before the screen, and brings them to their end when a stop
/// is asked for.
class ScreenOperator final : public IOperator {
 public:
  ScreenOperator(std::shared_ptr<headless::Application> application, StopRequest& stop);
  ~ScreenOperator() override;

 private:
  void Leave();

  const std::shared_ptr<headless::Application> application_;
  ILoop::Id again_ = 0;
  orvik::platform::Subscription stopAsked_;
};

}  // namespace bench
