#include <array>
#include <random>

#include "tester/Fault.h"
#include "tests/system/soak/SoakRun.h"

namespace soak {

namespace {

constexpr int kHighestReading = 600;
constexpr int kPumpCalls = 120;  // more than an undisturbed run has

class Draw {
 public:
  Draw(std::uint64_t seed, int run) : engine_(seed + static_cast<std::uint64_t>(run) * 0x9E3779B97F4A7C15U) {}

  int Below(int end) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(end)); }
  bool Chance(int percent) { return Below(100) < percent; }
  std::uint64_t Seed() { return engine_(); }

 private:
  std::mt19937_64 engine_;
};

/// Faults that random ones do not cause: permanent ones, and readings that look correct.
std::string OneFault(Draw& draw) {
  static constexpr std::array kCommands{"IREM 1", "STST 1", "GRES 1", "STST 2", "GRES 2", "EREM 1", "ANY"};
  static constexpr std::array kFaults{"hang-up",
                                      "drop",
                                      "error 6002",
                                      "delay 7000",
                                      "double",
                                      "stall 9 2500",
                                      "reply gres,610,0,0.001,0,Ohm",
                                      "reply gres,410,0,0.001,1,Ohm",
                                      "reply gres,410,0,0.001,0,A"};
  const auto command = static_cast<std::size_t>(draw.Below(static_cast<int>(kCommands.size())));
  const auto fault = static_cast<std::size_t>(draw.Below(static_cast<int>(kFaults.size())));
  return std::string("at ") + kCommands[command] + " " + kFaults[fault] + "\n";
}

}  // namespace

Plan DrawPlan(std::uint64_t seed, int run) {
  Draw draw(seed, run);
  Plan plan;
  plan.seed = draw.Seed();
  plan.kind = draw.Chance(60) ? Kind::kTest : Kind::kSequence;
  // Odd and even readings in turn, so a reading left over from the previous run is noticed.
  for (const int testId : {410, 420})
    plan.truth[testId] = 2 * (1 + draw.Below(kHighestReading / 2)) + run % 2;
  if (plan.truth[410] == plan.truth[420]) plan.truth[420] += 2;
  if (draw.Chance(20))
    plan.script = OneFault(draw);
  else if (draw.Chance(70))
    plan.faultRate = 0.05 + 0.01 * draw.Below(50);
  if (draw.Chance(15)) plan.stopAt = draw.Below(kPumpCalls);
  return plan;
}

std::string TextOf(const Plan& plan) {
  std::string text = plan.kind == Kind::kTest ? "test" : "sequence";
  for (const auto& [testId, reading] : plan.truth)
    text += ", " + std::to_string(testId) + " reads " + std::to_string(reading) + " mOhm";
  if (!plan.script.empty()) text += ", " + plan.script.substr(0, plan.script.find('\n'));
  if (plan.faultRate > 0) text += ", faults at a rate of " + std::to_string(plan.faultRate);
  if (plan.stopAt) text += ", a stop at call " + std::to_string(*plan.stopAt);
  return text;
}

}  // namespace soak
