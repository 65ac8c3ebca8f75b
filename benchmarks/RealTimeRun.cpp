#include <algorithm>
#include <chrono>
#include <stdexcept>

#include "benchmarks/Measurements.h"
#include "benchmarks/WireTimes.h"
#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"

namespace benchmarks {

namespace {

using Seconds = std::chrono::duration<double>;

/// The pause before every command that the protocol asks for.
constexpr Seconds kPause{3.5};
/// IREM, STST, GRES of the test, STST of test 210 and EREM.
constexpr std::size_t kCommands = 5;

struct RealTimeRun {
  support::Finished cost;
  Seconds floor{};     ///< the protocol's pauses and the tester's own time
  Seconds shortest{};  ///< between two commands
};

/// One test, on the programs and the library that users have, at the speed of the wall clock.
RealTimeRun Perform(const Context& context) {
  const support::TemporaryFolder folder;
  const auto path = [&](const char* name) { return (folder.Path() / name).string(); };
  support::Process tester(context.Simulator(),
                          {"--link", path("tester"), "--trace", path("trace"), "--exit-with-parent"});
  if (!tester.AwaitOutput("keld-sim: ready")) throw std::runtime_error("keld-sim: " + tester.Wait().error);
  support::RunWell(context.Bench(), {"new", path("test.orvik"), "--add", "410", "--state", path("state")});

  RealTimeRun run;
  run.cost = support::RunWell(context.Bench(), {"run", path("test.orvik"), "--port", path("tester"),
                                                "--state", path("state"), "--wire-log", path("wire.log")});
  const auto spacing = CommandSpacing(ReadWire(path("wire.log")));
  if (spacing.size() + 1 != kCommands)
    throw std::runtime_error("the run sent " + std::to_string(spacing.size() + 1) + " commands instead of " +
                             std::to_string(kCommands));
  run.shortest = *std::min_element(spacing.begin(), spacing.end());
  run.floor = kPause * kCommands + TesterTime(ReadWire(path("trace")));
  return run;
}

const RealTimeRun& TheRun(const Context& context) {
  static const RealTimeRun run = Perform(context);
  return run;
}

}  // namespace

Figure MeasureSessionTime(const Context& context) {
  const auto& run = TheRun(context);
  return {run.cost.wall / run.floor,
          "of the floor",
          run.floor.count(),
          "the floor in s: the protocol's pauses and the tester's own time",
          1.005,
          Bound::kAtMost};
}

Figure MeasureCommandSpacing(const Context& context) {
  constexpr double kMilliseconds = 1000;
  return {TheRun(context).shortest.count() * kMilliseconds,
          "ms",
          kPause.count() * kMilliseconds,
          "the protocol's pause",
          kPause.count() * kMilliseconds,
          Bound::kAtLeast};
}

Figure MeasureWaiting(const Context& context) {
  // Start and end of the program included, so this is more than waiting takes.
  constexpr double kPercent = 100;
  const auto& cost = TheRun(context).cost;
  return {kPercent * (cost.processor / cost.wall), "% of a core", {}, "", 0.2, Bound::kAtMost};
}

}  // namespace benchmarks
