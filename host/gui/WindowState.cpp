#include "host/gui/WindowState.h"

#include <stdexcept>
#include <utility>

namespace host::gui {

WindowState::Scope::~Scope() {
  state_.activity_ = before_;
  if (!state_.Busy()) state_.stop_ = nullptr;
}

WindowState::Scope WindowState::Work() {
  const auto before = activity_;
  if (activity_ == Activity::kIdle) activity_ = Activity::kWorking;
  return {*this, before};
}

WindowState::Scope WindowState::Begin(Activity activity, std::function<void()> stop) {
  if (Busy()) throw std::logic_error("the window is busy");
  const auto before = std::exchange(activity_, activity);
  stop_ = std::move(stop);
  return {*this, before};
}

void WindowState::Stop() {
  if (stop_) stop_();
}

bool WindowState::ReadyToClose() const {
  return !Busy() && (closing_ == Closing::kWanted || closing_ == Closing::kRequired);
}

void WindowState::Close() {
  if (closing_ == Closing::kNo) closing_ = Closing::kWanted;
}

void WindowState::RequireClose() {
  if (closing_ != Closing::kDone) closing_ = Closing::kRequired;
}

void WindowState::KeepOpen() {
  if (closing_ == Closing::kWanted) closing_ = Closing::kNo;
}

}  // namespace host::gui
