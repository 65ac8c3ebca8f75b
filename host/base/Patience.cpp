#include "host/base/Patience.h"

#include <ctime>
#include <utility>

namespace host {
namespace {

using Clock = std::chrono::steady_clock;

constexpr long kPauseNanoseconds = 20'000'000;

struct Waiting {
  Clock::duration left{};
  Patience::Remark remark;
  std::string reason;  ///< of the last remark
};

Waiting& TheWaiting() {
  static Waiting waiting;
  return waiting;
}

}  // namespace

void Patience::Set(std::chrono::milliseconds time, Remark remark) {
  TheWaiting() = {time, std::move(remark), {}};
}

bool Patience::WaitsFor(const std::string& reason) {
  auto& waiting = TheWaiting();
  if (waiting.left <= Clock::duration::zero()) return false;
  if (waiting.reason != reason) {
    waiting.reason = reason;
    waiting.remark(reason);
  }
  const auto begin = Clock::now();
  const timespec pause{0, kPauseNanoseconds};
  // A signal that is handled ends the sleep early, and the waiting with it.
  const bool whole = nanosleep(&pause, nullptr) == 0;
  waiting.left = whole ? waiting.left - (Clock::now() - begin) : Clock::duration::zero();
  return whole;
}

}  // namespace host
