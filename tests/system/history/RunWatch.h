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

/// Records for the oracle what really happened in a run: which element was measured when, and what came over
/// the wire meanwhile. The test bench reports the events in their order.
class RunWatch {
 public:
  using Time = std::chrono::microseconds;

  /// @param elements of the run, at the top of the selection
  RunWatch(World& world, const std::string& file, const RunSetup& run, const std::vector<int>& elements,
           const TrueTester& tester);

  /// The document has been saved; the last time if the program is killed then.
  void Saved(bool last);
  void Started(int element);
  void Finished(int element);
  /// The guide of this element is shown next.
  void Reached(int element);
  /// The operator has chosen this for the element whose guide is shown.
  void SetAside(Record::How how) { word_ = how; }
  /// The operator has confirmed an abort: in a guide that waits, or at any other moment, when it may have had
  /// no effect.
  void Aborted(bool inWaitingGuide);
  void Stopped();

  /// A violation by the run; none if all is well.
  const std::optional<std::string>& Offence() const { return offence_; }

  void PortOpened();
  void PortClosed();
  void Sent(const std::string& line, bool somethingWaits, Time at);
  void Received(const std::string& line, Time at);
  void Dropped();

 private:
  /// After the last save only reports of what it contained still count.
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
  bool savedSince_ = false;  ///< since the last report on the running element
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
  int waiting_ = 0;  ///< replies without a command
  bool plausible_ = true, spoiled_ = false, doubtful_ = false;
};

/// The reading as the plug-in records it: less the test leads, in the recorded unit.
Amount Corrected(const Amount& read, int testId, int leads);
/// Whether the number, in the unit of the element, exceeds a limit as the plug-in compares them.
bool BreaksByNumber(const Limit& limit, Decimal number, int testId);

}  // namespace history
