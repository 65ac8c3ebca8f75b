#include "instrument/FClock.h"

#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDGlobalVars.h"

namespace keld::instrument {

std::shared_ptr<FClock> FClock::Create() { return std::shared_ptr<FClock>(new FClock); }

FClock::FClock()
    : Form(MKELDGlobalVars::Application()->CreateForm("FClock")), tmrClock(Form->AddTimer("tmrClock")) {
  tmrClock->SetEnabled(false);
  TickSubscription = tmrClock->Tick().Subscribe([this] { mClockPulse.Raise(); });
}

FClock::~FClock() {
  Attempt([&] { Unload(); });
}

void FClock::Load() { Form->Load(); }

void FClock::Unload() {
  StopClock();
  Form->Unload();
}

void FClock::StartClock(std::int16_t iMilliseconds) {
  tmrClock->SetEnabled(false);
  tmrClock->SetInterval(iMilliseconds);
  tmrClock->SetEnabled(true);
}

void FClock::StopClock() { tmrClock->SetEnabled(false); }

bool FClock::Running() const { return Form->Loaded() && tmrClock->Enabled() && tmrClock->Interval() > 0; }

}  // namespace keld::instrument
