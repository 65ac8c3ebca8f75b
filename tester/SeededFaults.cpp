#include "tester/SeededFaults.h"

#include <array>
#include <utility>

namespace sim {

namespace {

/// An own generator (splitmix64): the same numbers from every compiler and library.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15U;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
  }
  /// 0 to `highest`.
  int Upto(int highest) { return static_cast<int>(Next() % (static_cast<std::uint64_t>(highest) + 1)); }
  /// 0 to below 1.
  double Share() { return static_cast<double>(Next() >> 11) / 9007199254740992.0; }  // 2 to the 53rd

 private:
  std::uint64_t state_;
};

constexpr int kLongestDelay = 8000;  // ms; beyond the next attempt's wait
constexpr int kLongestStall = 6000;
constexpr int kLongestUnplugged = 3000;
constexpr int kLongestBeginning = 30;  // bytes; more than any reply has
constexpr std::array kErrors{1001, 1002, 1003, 6002};

// Hanging up for good is not among them: it would end the tester. Nor is a reply of one's own.
constexpr std::array kKinds{FaultKind::Delay,    FaultKind::Drop,    FaultKind::Double,
                            FaultKind::Truncate, FaultKind::Shorten, FaultKind::Stall,
                            FaultKind::Garble,   FaultKind::Noise,   FaultKind::WrongMnemonic,
                            FaultKind::Error,    FaultKind::Forget,  FaultKind::Unplug};

int DrawError(Dice& dice) {
  const int which = dice.Upto(static_cast<int>(kErrors.size()));
  return which < static_cast<int>(kErrors.size()) ? kErrors[static_cast<std::size_t>(which)]
                                                  : dice.Upto(kHighestErrorNumber);
}

Fault Draw(Dice& dice) {
  Fault fault;
  fault.kind = kKinds[static_cast<std::size_t>(dice.Upto(static_cast<int>(kKinds.size()) - 1))];
  switch (fault.kind) {
    case FaultKind::Delay:
      fault.ms = dice.Upto(kLongestDelay);
      break;
    case FaultKind::Truncate:
    case FaultKind::Shorten:
      fault.number = dice.Upto(kLongestBeginning);
      break;
    case FaultKind::Stall:
      fault.number = dice.Upto(kLongestBeginning);
      fault.ms = dice.Upto(kLongestStall);
      break;
    case FaultKind::Noise:
      if (dice.Upto(1) == 1) fault.ms = dice.Upto(kLongestStall);
      break;
    case FaultKind::Error:
      fault.number = DrawError(dice);
      break;
    case FaultKind::Unplug:
      fault.ms = dice.Upto(kLongestUnplugged);
      break;
    default:
      break;
  }
  return fault;
}

}  // namespace

SeededFaults::SeededFaults(std::uint64_t seed, double rate, Listener listener)
    : seed_(seed), rate_(rate), listener_(std::move(listener)) {}

void SeededFaults::OnReply(const Exchange& exchange, Reply& reply) {
  // Each command has dice of its own, so that what went before does not matter.
  Dice dice(Dice(seed_).Next() ^ Dice(exchange.index).Next());
  if (dice.Share() >= rate_) return;
  const Fault fault = Draw(dice);
  Apply(fault, reply);
  if (listener_) listener_("at ANY " + std::to_string(exchange.index) + " " + FaultText(fault));
}

}  // namespace sim
