#pragma once

#include <chrono>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/system/history/Operation.h"
#include "tests/system/history/TrueTester.h"
#include "tests/system/history/World.h"

namespace history {

/// Writes down, for the oracle, what really happened in a run: which element was measured when, and what came
/// over the wire meanwhile. It is told by the test bench, in the order in which it happens.
class RunWatch {
 public:
  using Time = std::chrono::microseconds;

  /// @param elements that the run takes up, at the top of the selection
  RunWatch(World& world, const std::string& file, const RunSetup& run, const std::vector<int>& elements,
           const TrueTester& tester);

  /// The document has been saved; whether it was the last time, since the program is killed then.
  void Saved(bool last);
  void Started(int element);
  void Finished(int element);
  /// The guide of this element is shown next.
  void Reached(int element);
  /// The operator has said so of the element whose guide is shown.
  void SetAside(Record::How how) { word_ = how; }
  /// The operator has pressed abort and said yes: in a guide that waits, or at any moment, when it may have
  /// been in vain.
  void Aborted(bool inWaitingGuide);
  void Stopped();

  /// What the run must not have done; none when all is well.
  const std::optional<std::string>& Offence() const { return offence_; }

  void PortOpened();
  void PortClosed();
  void Sent(const std::string& line, bool somethingWaits, Time at);
  void Received(const std::string& line, Time at);
  void Dropped();

 private:
  /// After the last save only the news of what it held still counts.
  bool Over();
  Record& RecordOf(int element) { return document_.records[element]; }
  Record* Measured() { return leaf_ == 0 || frozen_ ? nullptr : &RecordOf(leaf_); }
  void TakeUp(const Element& top);
  void Begin(const Element& element);
  void SumUp(const Element& group, Record& record) const;
  Maybe FoundFailed(const Element& element, const Record& record) const;
  void TakeReading(const std::string& line, Record& record);
  void TakeIdentity(const std::string& line, bool isTrue);
  void Suspect(const std::string& line, Record& record) const;

  World& world_;
  DocumentState& document_;
  const RunSetup& run_;
  const TrueTester& tester_;
  std::optional<std::string> offence_;
  bool savedSince_ = false;  ///< since something was heard of the running element
  bool begun_ = false, lastSave_ = false, frozen_ = false;
  std::vector<int> tops_;
  std::set<int> running_;
  int top_ = 0, leaf_ = 0;
  bool pressed_ = false;  ///< stop or abort, since the guide was shown
  Record::How word_ = Record::How::kTester;

  // The session with the tester.
  std::string command_;
  Time sentAt_{};
  bool answered_ = false;
  int waiting_ = 0;  ///< replies that came when nothing was asked
  bool plausible_ = true, spoiled_ = false, doubtful_ = false;
};

/// What the plug-in makes of the reading: less the test leads, in the unit in which it is recorded.
Amount Corrected(const Amount& read, int testId, int leads);
/// Whether the number, in the unit of the element, breaks a limit as the plug-in compares them.
bool BreaksByNumber(const Limit& limit, Decimal number, int testId);

}  // namespace history
