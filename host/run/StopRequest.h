#pragma once

#include "platform/Event.h"

namespace bench {

/// The wish of the person at the terminal that the run ends in good order.
class StopRequest {
 public:
  /// Asking again changes nothing: the session with the tester is closed in any case.
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

}  // namespace bench
