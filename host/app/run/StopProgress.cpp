#include "host/app/run/StopProgress.h"

#include <algorithm>
#include <cmath>

#include "host/serial/Message.h"
#include "host/services/Tr.h"

namespace bench {

using orvik::platform::Time;

namespace {

constexpr Time kAttempt = ExchangeView::kPause + ExchangeView::kReplyTime;
constexpr Time kCommand = ExchangeView::kMaxAttempts * kAttempt;

}  // namespace

StopProgress::StopProgress(Wire& wire, const ILoop& loop, double timeScale)
    : loop_(loop),
      timeScale_(timeScale),
      heard_(wire.Subscribe([this](const WireRecord& record) { Take(record); })) {}

void StopProgress::Take(const WireRecord& record) {
  exchange_.Take(record);
  if (record.kind == WireRecord::Kind::kOpened) closing_ = Closing::kNeither;
  if (!begun_ || record.kind != WireRecord::Kind::kSent) return;
  if (record.message->MnemonicText() == "STST") closing_ = Closing::kTest;
  if (record.message->MnemonicText() == "EREM") closing_ = Closing::kSession;
}

Time StopProgress::Remaining() const {
  if (!exchange_.Open()) return Time(0);
  // A command that has its reply is over; one without has the rest of this attempt and those that are left.
  const auto attempts = [&](int left) {
    return exchange_.Unanswered() ? exchange_.ReplyEnds() - loop_.Now() + left * kAttempt : Time(0);
  };
  const int left = ExchangeView::kMaxAttempts - exchange_.Attempt();
  const auto rest = closing_ == Closing::kNeither ? attempts(0) + 2 * kCommand
                    : closing_ == Closing::kTest  ? attempts(left) + kCommand
                                                  : attempts(left);
  return std::max(rest, Time(0));
}

std::string StopProgress::Text() const {
  const auto remaining = Remaining();
  if (remaining == Time(0)) return Tr("Already stopping: the document is being saved.");
  const auto seconds = std::ceil(static_cast<double>(remaining.count()) / 1e6 / timeScale_);
  return Tr(
      "Already stopping: the session with the tester is being closed (%%1); it takes at most %%2 s more.",
      {exchange_.Text(loop_.Now()), std::to_string(static_cast<long long>(seconds))});
}

}  // namespace bench
