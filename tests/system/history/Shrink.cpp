#include "tests/system/history/Shrink.h"

#include <array>
#include <utility>

namespace history {
namespace {

using Simplify = void (*)(RunSetup&);

constexpr std::array<Simplify, 11> kSimpler{{
    [](RunSetup& run) { run.presses.clear(); },
    [](RunSetup& run) { run.tester.behaviours.clear(); },
    [](RunSetup& run) { run.tester.faults.clear(); },
    [](RunSetup& run) { run.tester.faultPercent = 0; },
    [](RunSetup& run) { run.stopAt.reset(); },
    [](RunSetup& run) { run.abortAt.reset(); },
    [](RunSetup& run) { run.killedAfterSaves.reset(); },
    [](RunSetup& run) { run.standards.clear(); },
    [](RunSetup& run) { run.newProgram = true; },
    [](RunSetup& run) { run.tester.serial = "T-1"; },
    [](RunSetup& run) { run.tester.laterSerial.clear(); },
}};

}  // namespace

std::vector<Operation> Shrunk(
    std::vector<Operation> history,
    const std::function<std::optional<std::string>(const std::vector<Operation>&)>& fails) {
  for (bool smaller = true; smaller;) {
    smaller = false;
    for (std::size_t place = history.size(); place-- > 0;) {
      auto without = history;
      without.erase(without.begin() + static_cast<std::ptrdiff_t>(place));
      if (!fails(without)) continue;
      history = std::move(without);
      smaller = true;
    }
  }
  for (std::size_t place = 0; place < history.size(); ++place) {
    if (history[place].kind != Operation::Kind::kRun) continue;
    for (const auto& simplify : kSimpler) {
      auto simpler = history;
      simplify(simpler[place].run);
      if (TextOf(simpler[place]) != TextOf(history[place]) && fails(simpler)) history = std::move(simpler);
    }
  }
  return history;
}

}  // namespace history
