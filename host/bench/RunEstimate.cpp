#include "host/bench/RunEstimate.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "host/base/Tr.h"
#include "host/plugins/keld/KeldProtocol.h"

namespace host::bench {

using orvik::platform::Time;

namespace {

/// "IREM", a "STST" and a "GRES" for each test, "STST" and "EREM".
std::size_t CommandsOf(std::size_t tests) { return 3 + 2 * tests; }

}  // namespace

void RunEstimate::Reach(std::size_t place) {
  place_ = place;
  answered_ = 0;
}

void RunEstimate::Take(const serial::WireRecord& record) {
  switch (record.kind) {
    case serial::WireRecord::Kind::kOpened:
      answeredAt_ = record.time;
      break;
    case serial::WireRecord::Kind::kSent:
      sent_ = record.time;
      waiting_ = true;
      break;
    case serial::WireRecord::Kind::kReceived:
      if (!waiting_) break;  // not a reply to a command
      waiting_ = false;
      ++answered_;
      ++replies_;
      replyTime_ += record.time - sent_;
      answeredAt_ = record.time;
      break;
    case serial::WireRecord::Kind::kDropped:
    case serial::WireRecord::Kind::kFailed:
    case serial::WireRecord::Kind::kClosed:
      break;
  }
}

Time RunEstimate::Left(Time now) const {
  if (place_ == 0 || place_ > tests_.size()) return Time(0);
  std::size_t commands = 0;
  for (auto place = place_; place <= tests_.size(); ++place) commands += CommandsOf(tests_[place - 1]);
  commands -= std::min(answered_, CommandsOf(tests_[place_ - 1]));
  const auto reply = replies_ > 0 ? replyTime_ / static_cast<Time::rep>(replies_) : Time(0);
  const auto whole = static_cast<Time::rep>(commands) * (plugins::keld::kPause + reply);
  return std::max(whole - (now - answeredAt_), Time(0));
}

std::string RunEstimate::Text(Time now, double timeScale) const {
  const auto left = Left(now);
  if (left == Time(0)) return {};
  const auto seconds = static_cast<long long>(std::ceil(static_cast<double>(left.count()) / 1e6 / timeScale));
  char clock[32];
  std::snprintf(clock, sizeof clock, "%lld:%02lld", seconds / 60, seconds % 60);
  return Tr("about %%1 left", {clock});
}

}  // namespace host::bench
