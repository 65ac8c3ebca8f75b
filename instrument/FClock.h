#pragma once

#include <cstdint>
#include <memory>

#include "platform/Event.h"
#include "platform/IForm.h"
#include "platform/ITimer.h"

namespace keld::instrument {

/// The timer form of an instrument link. It is never shown.
class FClock {
 public:
  static std::shared_ptr<FClock> Create();
  ~FClock();
  FClock(const FClock&) = delete;
  FClock& operator=(const FClock&) = delete;

  void Load();
  void Unload();

  /// Raises `ClockPulse` at this interval, first after one whole interval, until
  /// `StopClock`.
  void StartClock(std::int16_t iMilliseconds);
  void StopClock();
  /// Whether a pulse is still to come. Check it before waiting: the form may have been unloaded.
  bool Running() const;

  orvik::platform::Event<>& ClockPulse() { return mClockPulse; }

 private:
  FClock();

  std::shared_ptr<orvik::platform::IForm> Form;
  std::shared_ptr<orvik::platform::ITimer> tmrClock;
  orvik::platform::Event<> mClockPulse;
  orvik::platform::Subscription TickSubscription;
};

}  // namespace keld::instrument
