#include "host/app/run/ScreenOperator.h"

#include <utility>

#include "host/run/GuideToolbar.h"
#include "platform/IForm.h"

namespace bench {

ScreenOperator::ScreenOperator(std::shared_ptr<orvik::platform::IApplication> application, StopRequest& stop)
    : application_(std::move(application)),
      stop_(stop),
      shown_(application_->FormShown().Subscribe(
          [this](const std::shared_ptr<orvik::platform::IForm>&) { Shown(); })),
      stopAsked_(stop.Happened().Subscribe([this] { LeaveGuide(*application_); })) {}

void ScreenOperator::Shown() {
  if (!stop_.Asked()) return;
  // The window is shown first, and operated once it waits for the operator.
  application_->Post([this, alive = std::weak_ptr<int>(alive_)] {
    if (!alive.expired()) LeaveGuide(*application_);
  });
}

}  // namespace bench
