#pragma once

#include "platform/Event.h"

namespace host::run {

/// A request to end the run and to close the session with the tester.
class StopRequest {
 public:
  /// Only the first request has an effect.
  void Ask() {
    if (asked_) return;
    asked_ = true;
    happened_.Raise();
  }
  bool Asked() const { return asked_; }
  orvik::platform::Event<>& Happened() { return happened_; }

 private:
  bool asked_ = false;
  orvik::platform::Event<> happened_;
};

}  // namespace host::run
