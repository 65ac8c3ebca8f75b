#include "host/bench/ExchangeView.h"

#include <algorithm>
#include <cstdio>

#include "host/base/Tr.h"
#include "host/serial/Latin1.h"

namespace host::bench {

namespace {

std::string SecondsText(orvik::platform::Time time) {
  char text[32];
  const auto tenths = std::max<long long>(0, (time.count() + 99'999) / 100'000);
  std::snprintf(text, sizeof text, "%lld.%lld s", tenths / 10, tenths % 10);
  return text;
}

}  // namespace

void ExchangeView::Take(const serial::WireRecord& record) {
  switch (record.kind) {
    case serial::WireRecord::Kind::kOpened:
      *this = {};
      open_ = true;
      break;
    case serial::WireRecord::Kind::kSent: {
      const auto command = serial::VisibleLatin1(record.text);
      // The "STST" that ends test 210 is the one that starts it, and no attempt of that.
      const bool again = waiting_ && command == command_ && attempt_ < plugins::keld::kMaxAttempts;
      attempt_ = again ? attempt_ + 1 : 1;
      command_ = command;
      waiting_ = true;
      break;
    }
    case serial::WireRecord::Kind::kReceived:
      waiting_ = false;
      break;
    case serial::WireRecord::Kind::kDropped:
      return;
    case serial::WireRecord::Kind::kFailed:
    case serial::WireRecord::Kind::kClosed:
      open_ = false;
      waiting_ = false;
      break;
  }
  since_ = record.time;
}

std::string ExchangeView::Text(orvik::platform::Time now) const {
  if (!open_) return "";
  if (Waiting(now))
    return Tr("%%1, attempt %%2 of %%3: reply within %%4",
              {command_, std::to_string(attempt_), std::to_string(plugins::keld::kMaxAttempts),
               SecondsText(since_ + plugins::keld::kReplyTime - now)});
  const auto next =
      since_ + (waiting_ ? plugins::keld::kReplyTime : orvik::platform::Time(0)) + plugins::keld::kPause;
  const auto wait = SecondsText(next - now);
  if (waiting_) return Tr("no reply to %%1: next command in %%2", {command_, wait});
  if (command_.empty()) return Tr("port open: next command in %%1", {wait});
  return Tr("%%1 answered: next command in %%2", {command_, wait});
}

}  // namespace host::bench
