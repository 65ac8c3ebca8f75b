#include "tester/Program.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>
#include <utility>

#include "tester/Errors.h"
#include "tester/FaultScript.h"
#include "tester/LinkClaim.h"
#include "tester/ProfileFile.h"
#include "tester/PseudoTerminal.h"
#include "tester/Replay.h"
#include "tester/SeededFaults.h"
#include "tester/SerialLoop.h"
#include "tester/StopSignal.h"
#include "tester/Tester.h"
#include "tester/Text.h"
#include "tester/Trace.h"

namespace sim {

namespace {

/// Prints a line; a reader that does not read must not block the tester.
void Say(std::FILE* stream, const std::string& text) {
  std::fflush(stream);
  pollfd room{fileno(stream), POLLOUT, 0};
  if (poll(&room, 1, 0) == 1 && (room.revents & POLLOUT) != 0) {
    std::fprintf(stream, "keld-sim: %s\n", text.c_str());
    std::fflush(stream);
  }
}

std::shared_ptr<Faults> MakeFaults(const Options& options) {
  if (options.faults) return LoadFaultScript(*options.faults);
  if (options.replay)
    return std::make_shared<Replay>(LoadWireLog(*options.replay),
                                    [](const std::string& remark) { Say(stderr, remark); });
  if (options.faultSeed)
    return std::make_shared<SeededFaults>(*options.faultSeed, options.FaultRate(),
                                          [](const std::string& line) { Say(stdout, "fault: " + line); });
  return nullptr;
}

Tester MakeTester(const Options& options) {
  Profile profile = LoadProfile(options.profile);
  if (options.serial) {
    Identity identity = profile.Who();
    identity.serial = *options.serial;
    profile.SetIdentity(std::move(identity));
  }
  Tester tester(std::move(profile), options.timeScale);
  tester.UseFaults(MakeFaults(options));
  return tester;
}

/// What the ready line says beside the port: all that is needed to have the same again.
std::string Setting(const Options& options, const Tester& tester) {
  std::string text = "profile " + tester.Model().Name() + ", serial " + tester.Model().Who().serial;
  if (options.faultSeed) {
    char rate[32];
    std::snprintf(rate, sizeof rate, "%g", options.FaultRate());
    text += ", --fault-seed " + std::to_string(*options.faultSeed) + " --fault-rate " + rate;
  }
  if (options.replay) text += ", replay of " + *options.replay;
  return text;
}

/// Waits with the cable unplugged; false when the tester is to end.
bool StaysUnplugged(std::chrono::microseconds time, int stop) {
  const auto until = std::chrono::steady_clock::now() + time;
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - std::chrono::steady_clock::now());
    pollfd watched{stop, POLLIN, 0};
    if (poll(&watched, 1, static_cast<int>(std::max(left.count(), std::chrono::milliseconds::rep{0}))) > 0)
      return false;
    if (std::chrono::steady_clock::now() >= until) return true;
  }
}

/// One life of the cable: from plugging in to stop or hang-up. Gives how long it stays out then; empty when
/// the tester is to end.
std::optional<std::chrono::microseconds> Serve(const Options& options, Tester& tester, int stop, Trace* trace,
                                               const std::string& greeting) {
  std::optional<std::chrono::microseconds> backAfter;
  {
    const PseudoTerminal terminal;
    const DeviceLink link(options.link, terminal.DevicePath());
    std::printf("keld-sim: ready on %s (%s), %s\n", terminal.DevicePath().c_str(), options.link.c_str(),
                greeting.c_str());
    std::fflush(stdout);
    SerialLoop loop(tester, terminal.Fd(), stop, trace);
    if (loop.Run() == SerialLoop::End::Stopped) return std::nullopt;
    backAfter = loop.BackAfter();
  }
  // Printed after the link is removed, so that readers can rely on that.
  Say(stdout, backAfter ? "unplugged" : "hung up");
  return backAfter;
}

}  // namespace

void RunTester(const Options& options, int parent) {
  // Signals first, so that the link is removed in every case.
  const StopSignal stop;
  if (options.exitWithParent) ExitWithParent(parent);
  const LinkClaim claim(options.link);
  Tester tester = MakeTester(options);
  std::optional<Trace> trace;
  if (options.trace) trace.emplace(*options.trace);
  Trace* const noted = trace ? &*trace : nullptr;

  std::string greeting = Setting(options, tester);
  while (const auto gap = Serve(options, tester, stop.Fd(), noted, greeting)) {
    if (!StaysUnplugged(*gap, stop.Fd())) return;
    tester.PlugIn();
    if (noted) noted->Write("note", "plugged in again");
    greeting = "plugged in again";
  }
}

}  // namespace sim
