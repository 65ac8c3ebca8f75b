#include "host/bench/ScreenOperator.h"

#include <chrono>

#include "host/run/GuideToolbar.h"

namespace host::bench {

namespace {

constexpr std::chrono::milliseconds kNextLook{100};

}  // namespace

ScreenOperator::~ScreenOperator() { application_->Forget(again_); }

void ScreenOperator::OnStopRequested() {
  // The guide can be left once its test has ended, and a prompt may come in between. The next look is
  // scheduled first, so that it happens even if this one fails.
  again_ = application_->CallAt(application_->Now() + kNextLook, [this] { OnStopRequested(); });
  run::LeaveGuide(*application_);
}

}  // namespace host::bench
