#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tester/Faults.h"
#include "tester/LineReader.h"
#include "tester/Message.h"
#include "tester/Profile.h"

namespace sim {

/// A time on the caller's clock, from any epoch. It must not decrease.
using Instant = std::chrono::microseconds;

/// The numbers of an "ERRM" reply.
enum class TesterError {
  UnknownCommand = 1001,
  BadParameter = 1002,   ///< a parameter is missing, malformed, out of range or too much
  NotAllowedNow = 1003,  ///< outside remote mode, or the result of a test that was not started
  NoSuchTest = 6002,     ///< the tester lacks the test
};

/// Bytes that the tester sends at `due`.
struct Output {
  Instant due{};
  std::string bytes;    ///< normally one line with its end
  bool hangUp = false;  ///< the line ends after these bytes, as if the cable were pulled
  std::optional<std::chrono::microseconds> backAfter{};  ///< with `hangUp`: plug in again after this time
};

/// The simulated tester: takes the bytes of the serial line and answers them. It has neither a clock nor a
/// port: the caller says what time it is, and takes what is due.
///
///     tester.Receive("STST,410,0\r\n", now);
///     while (auto output = tester.TakeDue(now)) port.Write(output->bytes);
///     sleepUntil(tester.NextDue());
///
/// Commands are obeyed in order, as they arrive; replies leave in the same order, each when the tester has
/// finished what it answers (GRES takes the measuring time). Only a fault makes a reply overtake another.
class Tester {
 public:
  /// Commands that come while this many replies wait are lost, as in a tester that is busy.
  static constexpr std::size_t kMaxWaiting = 1000;

  /// Hears of every line that arrives: the bytes without their end, and whether the line was dropped.
  using LineListener = std::function<void(std::string_view bytes, bool dropped)>;

  /// Hears remarks on what the tester does wrong on purpose.
  using NoteListener = std::function<void(std::string_view note)>;

  static constexpr double kLowestTimeScale = 0.001;
  static constexpr double kHighestTimeScale = 1e9;

  /// `timeScale` divides measuring times and delays. Throws std::invalid_argument when it is out of bounds.
  explicit Tester(Profile profile, double timeScale = 1.0);

  /// Has every reply seen by `faults`; none for null.
  void UseFaults(std::shared_ptr<Faults> faults) { faults_ = std::move(faults); }

  /// Tells `listener` of every line that arrives.
  void OnLine(LineListener listener) { listener_ = std::move(listener); }

  /// Tells `listener` of every remark that a fault leaves.
  void OnNote(NoteListener listener) { noteListener_ = std::move(listener); }

  /// Takes bytes that have arrived at `now`. Nothing is taken as long as the line is hung up.
  void Receive(std::string_view bytes, Instant now);

  /// When the next output is due; empty when nothing waits.
  std::optional<Instant> NextDue() const;

  /// Takes the next output that is due at `now`, in order; empty when there is none (yet).
  std::optional<Output> TakeDue(Instant now);

  /// True between an accepted IREM and EREM.
  bool InRemoteMode() const { return remote_; }
  /// True after "#PON", until "#POF" or the end of remote mode. It has no bearing on the readings.
  bool PowerOn() const { return powerOn_; }
  /// Plugs the cable in again after an output with `hangUp`. The tester is as it was.
  void PlugIn();

  /// True once an output with `hangUp` has been taken, until `PlugIn`.
  bool HungUp() const { return hungUp_; }
  /// Good lines received so far.
  std::uint64_t CommandsReceived() const { return commands_; }
  /// Received lines that were dropped for their length, for a control byte, or because too many replies
  /// waited.
  std::uint64_t LinesDropped() const { return reader_.Dropped() + lost_; }
  const Profile& Model() const { return profile_; }

 private:
  struct StartedTest {
    int test = 0;
    int setting = 0;
  };
  /// A reply without its line end, and how long the tester is at it.
  struct Answer {
    std::string line;
    std::chrono::microseconds takes{};
  };

  void Spoil(const Exchange& exchange);
  void LeaveRemoteMode();
  void Obey(std::string_view line, Instant now);
  Answer AnswerTo(std::string_view line);
  Answer EnterRemote();
  Answer StartTest(const Message& command);
  Answer GetResult(const Message& command);
  Answer LeaveRemote();
  Answer SwitchPower(bool on);
  Answer WhoAmI(std::string_view mnemonic) const;
  static Answer Refuse(TesterError error);

  std::chrono::microseconds Scaled(std::chrono::microseconds time) const;
  void Queue(Output output);

  const Profile profile_;
  const double timeScale_;
  std::shared_ptr<Faults> faults_;
  LineListener listener_;
  NoteListener noteListener_;
  LineReader reader_;
  bool remote_ = false;
  bool powerOn_ = false;
  bool hungUp_ = false;
  std::optional<StartedTest> started_;
  Instant busyUntil_ = Instant::min();
  std::deque<Output> waiting_;  ///< by due time; equal ones in order of arrival
  Reply reply_;
  std::uint64_t commands_ = 0;
  std::uint64_t lost_ = 0;
};

}  // namespace sim
