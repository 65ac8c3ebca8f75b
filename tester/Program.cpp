#include "tester/Program.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <utility>

#include "tester/Errors.h"
#include "tester/FaultScript.h"
#include "tester/ProfileFile.h"
#include "tester/PseudoTerminal.h"
#include "tester/SerialLoop.h"
#include "tester/StopSignal.h"
#include "tester/Tester.h"
#include "tester/Trace.h"

namespace sim {

namespace {

Tester MakeTester(const Options& options) {
  Profile profile = LoadProfile(options.profile);
  if (options.serial) {
    Identity identity = profile.Who();
    identity.serial = *options.serial;
    profile.SetIdentity(std::move(identity));
  }
  Tester tester(std::move(profile), options.timeScale);
  if (options.faults) tester.UseFaults(LoadFaultScript(*options.faults));
  return tester;
}

}  // namespace

void RunTester(const Options& options, int parent) {
  // Signals first: whatever comes from here on, the link is removed.
  const StopSignal stop;
  if (options.exitWithParent) ExitWithParent(parent);
  Tester tester = MakeTester(options);
  std::optional<Trace> trace;
  if (options.trace) trace.emplace(*options.trace);
  const PseudoTerminal terminal;
  const DeviceLink link(options.link, terminal.DevicePath());

  std::printf("keld-sim: ready on %s (%s), profile %s, serial %s\n", terminal.DevicePath().c_str(),
              options.link.c_str(), tester.Model().Name().c_str(), tester.Model().Who().serial.c_str());
  std::fflush(stdout);

  SerialLoop loop(tester, terminal.Fd(), stop.Fd(), trace ? &*trace : nullptr);
  if (loop.Run() == SerialLoop::End::HungUp) {
    std::printf("keld-sim: hung up, as the fault script says\n");
    std::fflush(stdout);
  }
}

}  // namespace sim
