#include "host/app/run/ScreenOperator.h"

#include <chrono>
#include <utility>

#include "host/run/GuideToolbar.h"

namespace bench {

namespace {

constexpr std::chrono::milliseconds kNextLook{100};

}  // namespace

ScreenOperator::ScreenOperator(std::shared_ptr<headless::Application> application, StopRequest& stop)
    : application_(std::move(application)), stopAsked_(stop.Happened().Subscribe([this] { Leave(); })) {}

ScreenOperator::~ScreenOperator() { application_->Forget(again_); }

void ScreenOperator::Leave() {
  // The guide can be left once its test has ended, and a prompt may come in between. The next look is due
  // whatever happens in this one.
  again_ = application_->CallAt(application_->Now() + kNextLook, [this] { Leave(); });
  LeaveGuide(*application_);
}

}  // namespace bench
