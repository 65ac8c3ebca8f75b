#include "host/bench/StopProgress.h"

#include <algorithm>
#include <cmath>

#include "host/base/Tr.h"
#include "host/plugins/keld/KeldProtocol.h"
#include "host/serial/Message.h"

namespace host::bench {

using orvik::platform::Time;

namespace {

constexpr Time kAttempt = plugins::keld::kPause + plugins::keld::kReplyTime;
constexpr Time kCommand = plugins::keld::kMaxAttempts * kAttempt;
/// "STST" and "EREM".
constexpr int kClosingCommands = 2;

}  // namespace

StopProgress::StopProgress(serial::Wire& wire, const toolkit::loop::ILoop& loop, double timeScale)
    : loop_(loop),
      timeScale_(timeScale),
      heard_(wire.Subscribe([this](const serial::WireRecord& record) { Take(record); })) {}

void StopProgress::Begin() {
  begun_ = true;
  // Between two commands it is unknown whether the next one belongs to the test.
  commandsLeft_ = exchange_.Unanswered() ? kClosingCommands : 1 + kClosingCommands;
}

void StopProgress::Take(const serial::WireRecord& record) {
  exchange_.Take(record);
  if (!begun_ || record.kind != serial::WireRecord::Kind::kSent || exchange_.Attempt() > 1) return;
  commandsLeft_ =
      record.message->MnemonicText() == plugins::keld::kEndSession ? 0 : std::max(commandsLeft_ - 1, 1);
}

Time StopProgress::Remaining() const {
  if (!exchange_.Open()) return Time(0);
  // A command that has its reply is over; one without has the rest of this attempt and those that are left.
  const auto attemptsLeft = plugins::keld::kMaxAttempts - exchange_.Attempt();
  const auto exchange =
      exchange_.Unanswered() ? exchange_.ReplyEnds() - loop_.Now() + attemptsLeft * kAttempt : Time(0);
  return std::max(exchange + commandsLeft_ * kCommand, Time(0));
}

std::string StopProgress::Text() const {
  const auto remaining = Remaining();
  if (remaining == Time(0)) return Tr("Already stopping: the document is being saved.");
  const auto seconds = std::ceil(static_cast<double>(remaining.count()) / 1e6 / timeScale_);
  return Tr(
      "Already stopping: the session with the tester is being closed (%%1); it takes at most %%2 s more.",
      {exchange_.Text(loop_.Now()), std::to_string(static_cast<long long>(seconds))});
}

}  // namespace host::bench
