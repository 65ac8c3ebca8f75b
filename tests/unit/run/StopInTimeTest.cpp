#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "tests/unit/run/StoppedRun.h"

// However a run is ended, the session with the tester is closed, and the first byte of that is on its way as
// soon as the tester's pause allows it: at every call of the message pump, and at moments all over the run.
namespace {

using namespace std::chrono_literals;
using support::Ending;
using support::StoppedRun;
using support::WireLine;
using Kind = host::serial::WireRecord::Kind;
using Outcome = StoppedRun::Outcome;
using Texts = std::vector<std::string>;
using Time = StoppedRun::Time;
using Wire = std::vector<WireLine>;

/// The tester needs this long before every command.
constexpr auto kTesterPause = 3500ms;
/// And has this long for its reply.
constexpr auto kReplyTime = 2000ms;
/// What may be lost on top of the pause.
constexpr auto kAtMostLate = 100ms;
constexpr int kAttempts = 3;
/// All attempts of a command that is not answered.
constexpr auto kUnanswered = kAttempts * (kTesterPause + kReplyTime);
/// The test's own command and the two that close the session, none of them answered.
constexpr auto kLongestWayOut = 3 * kUnanswered;
/// Between the moments that are tried beside the calls of the pump.
constexpr auto kGrid = 610ms;

constexpr char kFirstOfSession[] = "IREM";
constexpr char kFirstOfClosing[] = "STST,210,0";
constexpr char kLastOfClosing[] = "EREM";

struct Row {
  const char* name;
  StoppedRun::Settings settings;

  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

bool IsSent(const WireLine& line, const char* command) {
  return line.kind == Kind::kSent && line.text == command;
}

/// The commands sent, several attempts of one counted once.
Texts CommandsOf(const Wire& wire) {
  Texts commands;
  for (const auto& line : wire)
    if (line.kind == Kind::kSent && (commands.empty() || commands.back() != line.text))
      commands.push_back(line.text);
  return commands;
}

/// What went over a link before and after the moment at which the run was to end.
struct StoppedLink {
  Wire before;
  Wire own;      ///< after it, as long as nothing closed the session
  Wire closing;  ///< from the first command that closes the session on

  /// Of the link that was open at the moment; all empty when none was.
  static StoppedLink AtTheMoment(const Outcome& end) {
    StoppedLink link;
    bool open = false;
    for (std::size_t i = 0; i < end.wire.size(); ++i) {
      const auto& line = end.wire[i];
      const bool after = i >= end.moment->wire;
      if (after && !open) break;
      open = line.kind != Kind::kClosed;
      if (!after && (!open || line.kind == Kind::kOpened)) link.before.clear();
      const bool closes = !link.closing.empty() || IsSent(line, kFirstOfClosing);
      (!after ? link.before : closes ? link.closing : link.own).push_back(line);
    }
    return link;
  }

  /// The session was being closed already.
  bool BeingClosed() const {
    return std::any_of(before.begin(), before.end(),
                       [](const WireLine& line) { return IsSent(line, kFirstOfClosing); });
  }
  /// A command had gone out, and its reply was awaited.
  bool Awaits(Time moment) const {
    return !before.empty() && before.back().kind == Kind::kSent && moment < before.back().time + kReplyTime;
  }
  /// Before the closing the tester had been entered, and no command since was left unanswered three times.
  bool SessionOpen() const {
    bool entered = false;
    int unanswered = 0;
    for (const auto* part : {&before, &own})
      for (const auto& line : *part) {
        if (line.kind == Kind::kSent) ++unanswered;
        if (IsSent(line, kFirstOfSession)) entered = false;
        if (line.kind != Kind::kReceived) continue;
        unanswered = 0;
        entered = entered || line.text.starts_with("irem");
      }
    return entered && unanswered < kAttempts;
  }
};

class StopInTimeTest : public testing::TestWithParam<Row> {
 protected:
  static bool Mute() { return GetParam().settings.muteFrom > 0; }
  static bool Asks() {
    const auto ending = GetParam().settings.ending;
    return ending == Ending::kAbort || ending == Ending::kCloseWindow;
  }
  /// The guide's stop ends a test; the person goes on to the next one.
  static bool EndsTheRun() { return GetParam().settings.ending != Ending::kStop; }

  void Check(const Outcome& end, const Outcome& undisturbed) {
    EXPECT_FALSE(end.stalled) << "the run waited for something that never comes";
    EXPECT_FALSE(end.leftPort);
    if (!Mute()) {
      EXPECT_FALSE(end.leftRemote) << "the tester was left in remote mode";
      CheckLastOfClosing(end);
    }
    if (!end.moment) return;
    const Time last = EndsTheRun() ? end.moment->time : std::max(end.moment->time, undisturbed.ended);
    EXPECT_LE(end.ended, last + kLongestWayOut);
    const auto link = StoppedLink::AtTheMoment(end);
    if (!end.moment->running) return CheckNothingMore(end);
    if (!link.BeingClosed()) CheckFirstOfClosing(*end.moment, link, undisturbed);
  }

  int closed_ = 0;  ///< how often a session was closed because of the stop

 private:
  /// The second command of the closing follows the first as soon as it may.
  static void CheckLastOfClosing(const Outcome& end) {
    for (std::size_t i = 1; i < end.wire.size(); ++i) {
      if (!IsSent(end.wire[i], kLastOfClosing)) continue;
      const bool asked = end.moment && end.moment->wire == i;
      const Time due = asked ? end.moment->time : end.wire[i - 1].time;
      EXPECT_LE(end.wire[i].time, due + kTesterPause + kAtMostLate);
    }
  }

  /// No test was running, so there was no session to be closed; none is begun any more.
  static void CheckNothingMore(const Outcome& end) {
    if (!EndsTheRun()) return;
    EXPECT_EQ(CommandsOf({end.wire.begin() + static_cast<std::ptrdiff_t>(end.moment->wire), end.wire.end()}),
              Texts{});
  }

  void CheckFirstOfClosing(const StoppedRun::Moment& moment, const StoppedLink& link,
                           const Outcome& undisturbed) {
    CheckOwn(moment, link);
    if (link.closing.empty()) {
      EXPECT_FALSE(link.SessionOpen()) << "the session was left open";
      return;
    }
    const Time first = link.closing.front().time;
    const Time due = link.own.empty() ? moment.time : std::max(moment.time, link.own.back().time);
    EXPECT_LE(first, due + kTesterPause + kAtMostLate);
    // Without a question that holds up everything it never comes later than it would have come by itself.
    if (GetParam().settings.thinks == 0ms) {
      EXPECT_LE(first, ClosingByItself(moment, undisturbed) + kAtMostLate);
    }
    ++closed_;
  }

  /// A stop lets the exchange that is on come to its end; an abort cuts it off.
  static void CheckOwn(const StoppedRun::Moment& moment, const StoppedLink& link) {
    Texts begun = CommandsOf(link.own);
    const bool awaits = link.Awaits(moment.time);
    // Another attempt of the same exchange begins nothing.
    if (!Asks() && awaits && !begun.empty() && begun.front() == link.before.back().text)
      begun.erase(begun.begin());
    EXPECT_LE(begun.size(), Asks() || awaits ? 0U : 1U) << begun.front();
  }

  /// When the session would have begun to be closed without the stop.
  static Time ClosingByItself(const StoppedRun::Moment& moment, const Outcome& undisturbed) {
    for (std::size_t i = moment.wire; i < undisturbed.wire.size(); ++i)
      if (IsSent(undisturbed.wire[i], kFirstOfClosing)) return undisturbed.wire[i].time;
    return Time::max() - kAtMostLate;
  }
};

TEST_P(StopInTimeTest, ClosesTheSessionAsSoonAsThePauseAllows) {
  const auto& settings = GetParam().settings;
  const Outcome undisturbed = StoppedRun(settings).Perform();
  Check(undisturbed, undisturbed);
  ASSERT_GT(undisturbed.pumps.size(), 20U);
  for (std::size_t pump = 0; pump < undisturbed.pumps.size() && !HasFailure(); ++pump) {
    SCOPED_TRACE("at pump call " + std::to_string(pump));
    Check(StoppedRun(settings).EndAtPump(pump), undisturbed);
  }
  for (Time time{}; time < undisturbed.ended && !HasFailure(); time += kGrid) {
    SCOPED_TRACE("after " + std::to_string(time.count()) + " microseconds");
    Check(StoppedRun(settings).EndAt(time), undisturbed);
  }
  EXPECT_GT(closed_, 10) << "hardly any session was closed because of the stop";
}

std::vector<Row> Rows() {
  return {
      {"Stop", {Ending::kStop}},
      {"Abort", {Ending::kAbort}},
      {"AbortAnsweredWithinThePause", {Ending::kAbort, 1200ms}},
      {"CloseWindow", {Ending::kCloseWindow}},
      {"CloseWindowAnsweredTwoCommandsLater", {Ending::kCloseWindow, 5s}},
      {"Signal", {Ending::kSignal}},
      {"SignalAtScreen", {Ending::kSignalAtScreen}},
      // The third command asks for the result of the single test, the fourth begins to close its session.
      {"StopMute", {Ending::kStop, 0ms, 3}},
      {"AbortMute", {Ending::kAbort, 0ms, 3}},
      {"SignalMute", {Ending::kSignal, 0ms, 3}},
      {"SignalAtScreenMute", {Ending::kSignalAtScreen, 0ms, 3}},
      {"AbortMuteWhileClosing", {Ending::kAbort, 0ms, 4}},
      {"SignalMuteWhileClosing", {Ending::kSignal, 0ms, 4}},
      {"SignalMuteInASequence", {Ending::kSignal, 0ms, 8}},
      {"AbortMuteInASequence", {Ending::kAbort, 0ms, 8}},
  };
}

INSTANTIATE_TEST_SUITE_P(EveryMoment, StopInTimeTest, testing::ValuesIn(Rows()),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
