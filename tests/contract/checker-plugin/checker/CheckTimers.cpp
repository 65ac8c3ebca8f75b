#include "platform/IApplication.h"
#include "platform/IForm.h"
#include "platform/ITimer.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

using std::chrono::milliseconds;

/// Processes messages for that long on the platform's clock.
void Pass(milliseconds time) {
  const auto application = TheHost().Application();
  const auto end = application->Now() + time;
  while (application->Now() < end) application->WaitMessages(end);
}

void Ticks(Findings& findings) {
  const auto application = TheHost().Application();
  const auto form = application->CreateForm("FTimers");
  form->Load();
  const auto timer = form->AddTimer("tmr");
  const auto started = application->Now();
  auto previous = started;
  int ticks = 0;
  const auto onTick = timer->Tick().Subscribe([&] {
    ++ticks;
    findings.Expect(application->Now() - previous >= milliseconds(ticks == 1 ? 20 : 0),
                    "no tick comes early");
    previous = application->Now();
    if (ticks == 3) timer->SetEnabled(false);
  });
  timer->SetInterval(20);
  findings.Equal(20, timer->Interval(), "interval of a timer");
  timer->SetEnabled(true);
  application->ProcessMessages();
  findings.Equal(0, ticks, "ticks before any time has passed");
  Pass(milliseconds(200));
  findings.Equal(3, ticks, "ticks of a timer that its third one disables");
  findings.Expect(previous - started >= milliseconds(60), "three ticks take three intervals");

  timer->SetInterval(0);
  timer->SetEnabled(true);
  Pass(milliseconds(50));
  findings.Equal(3, ticks, "ticks of a timer without interval");
  timer->SetInterval(20);
  timer->SetEnabled(false);
  Pass(milliseconds(50));
  findings.Equal(3, ticks, "ticks of a disabled timer");
  timer->SetEnabled(true);
  form->Unload();
  Pass(milliseconds(50));
  findings.Equal(3, ticks, "ticks of a timer whose form was unloaded");
}

void Posting(Findings& findings) {
  const auto application = TheHost().Application();
  std::string order;
  application->Post([&] {
    order += "1";
    application->Post([&] { order += "3"; });
  });
  application->Post([&] { order += "2"; });
  findings.Equal("", order, "posted work that ran at once");
  application->ProcessMessages();
  application->ProcessMessages();
  findings.Equal("123", order, "order of posted work");
}

void Clock(Findings& findings) {
  const auto application = TheHost().Application();
  const auto before = application->Now();
  application->WaitMessages(before - milliseconds(1));
  findings.Expect(application->Now() >= before, "the clock is monotonic, and a deadline may have passed");
  Pass(milliseconds(30));
  findings.Expect(application->Now() - before >= milliseconds(30), "a wait lasts until its deadline");
}

}  // namespace

void CheckTimers(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"ticks", Ticks}, {"posting", Posting}, {"the clock", Clock}});
}

}  // namespace check
