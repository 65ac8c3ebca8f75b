#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/system/history/Decimal.h"
#include "tests/system/history/Plan.h"

/// The truth, independent of the documents: the equipment, the testers, and what was really done. It is all
/// that the oracle knows.
namespace history {

/// Whether the plug-in set or judged a result so: yes, no, or unknown.
enum class Maybe { kNo, kYes, kUnknown };

/// The last execution of one element.
struct Record {
  enum class How { kTester, kNotApplicable, kSkipped, kAborted };

  // Where and when, by numbers of the document.
  int run = 0;
  long takenAt = 0;
  long finishedAt = 0;
  bool finished = false;
  How how = How::kTester;

  // The equipment and the settings.
  Equipment equipment;
  int parent = 0;  ///< 0 for an element at the top
  int testId = 0;
  int options = 0;            ///< those that decide what is measured
  std::vector<Limit> limits;  ///< by which the plug-in judged

  // What came over the wire.
  int leads = 0;
  bool plausible = true;       ///< the tester has a serial number and is of the right type
  bool spoiled = false;        ///< a reply was not the tester's true one
  bool doubtful = false;       ///< ... and the result must be doubtful
  bool interrupted = false;    ///< stop or abort was pressed meanwhile
  std::optional<Amount> read;  ///< the true reading, if it came
  bool overload = false;
  bool lacked = false;  ///< the tester lacks the test
  bool refusedNow = false;
  std::vector<std::string> said;  ///< every line that looks like a reading

  // Of a group, when it was finished.
  Maybe failed = Maybe::kNo;       ///< whether the plug-in found it failed; of a single test too
  std::optional<Decimal> summary;  ///< by number
  bool summaryKnown = true;
  Maybe anyResult = Maybe::kNo;  ///< whether any of its tests had a result

  // Later changes by other programs.
  int resultChanges = 0;  ///< of the saved result; after several it may be as before

  long LastAt() const { return finishedAt > takenAt ? finishedAt : takenAt; }
};

struct DocumentState {
  Plan plan;
  std::map<int, Record> records;            ///< the last of each element
  std::map<int, std::vector<Record>> past;  ///< those of runs before it, oldest first
  int runs = 0;                             ///< ever begun; each has its number here
  std::vector<int> inFile;                  ///< those in the file, in its order
  std::set<int> changedRuns;                ///< those that another program has changed
  std::map<int, int> runBefore;             ///< which run came before each, when it was begun
  int lastRun = 0;                          ///< the one that was begun last
  std::optional<bool> simulated;            ///< once there is a run: whether the first is
  bool anySimulated = false;
  bool tampered = false;  ///< whether another program has ever changed the file
  long step = 0;
  int highestTaken = 0;  ///< the highest identifier that a run has named
};

/// The place of the record's run in the file, from 0; -1 if it is not in the file.
int PlaceOf(const Record& record, const DocumentState& document);
/// Whether another program has changed the record's run or a later one, removed a later one, or changed their
/// order: the last record may be hidden.
bool InDoubt(const Record& record, const DocumentState& document);

struct World {
  std::map<std::string, DocumentState> documents;
  std::map<std::string, int> leads;  ///< stored, by serial number of the tester
  std::string lastSerial;            ///< of the tester that the program had last
  int leadsInUse = 0;                ///< as the program had them for that tester
  std::map<Equipment, std::map<std::pair<int, int>, Amount>> equipment;

  /// The value of the equipment in the test and setting, as a faultless tester reads it.
  Amount True(const Equipment& equipment, int testId, int setting) const;
  int LeadsOf(const std::string& serial) const;
};

}  // namespace history
