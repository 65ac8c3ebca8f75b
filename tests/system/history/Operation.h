#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/system/history/Plan.h"

/// What a person, a tester or another program does. A history is a list of operations; it stays meaningful if
/// some of them are omitted.
namespace history {

/// What the operator presses in one guide.
enum class Press {
  kPlayThenNext,
  kNext,  ///< without play
  kPlayThenPrevious,
  kPlayTwice,  ///< after a result that did not pass the second one measures again
  kNotApplicable,
  kSkip,
  kAbort
};

/// How the tester behaves in one test, unlike others.
struct Behaviour {
  enum class Kind { kInUnit, kOverload, kLacks, kRefusesNow };

  int testId = 0;
  Kind kind = Kind::kInUnit;
  std::string unit;  ///< of `kInUnit`
};

struct TesterSetup {
  std::string serial = "T-1";
  std::string laterSerial;  ///< of the tester from the second session on; empty for the same
  std::string type = "KELD(IN)";
  std::vector<Behaviour> behaviours;
  std::string faults;           ///< lines of a fault script
  std::uint64_t faultSeed = 0;  ///< of random faults
  int faultPercent = 0;
};

struct RunSetup {
  std::vector<int> elements;  ///< none: all
  std::vector<std::string> standards;
  bool resume = false;
  bool simulated = false;
  bool newProgram = true;  ///< the program has been started for it; else it ran before
  TesterSetup tester;
  std::vector<Press> presses;          ///< in one guide after the other; then play and next
  std::optional<int> stopAt, abortAt;  ///< call of the message pump
  std::optional<int> killedAfterSaves;
};

/// What another program does to the file.
struct Tampering {
  enum class Kind {
    kReformat,      ///< the layout alone
    kResultStatus,  ///< the saved status of an element
    kResultValue,   ///< its saved measurement
    kResultRemoved,
    kRunAttribute,  ///< any attribute of a run, or of anything in it
    kRunNode,       ///< any node of a run is removed
    kRunText,       ///< any text in a run
    kRunRemoved,    ///< a run that is not the last
    kRunsSwapped,
    kLimitBound,  ///< a bound of an element, without its program
    kLimitUnit,   ///< its unit
    kLimitKey,    ///< its key
    kOptions,     ///< an element's settings
    kEquipment
  };

  Kind kind = Kind::kReformat;
  int element = 0;
  std::uint32_t which = 0;  ///< which of those there are
  std::string value;        ///< the new value
};

struct Operation {
  enum class Kind {
    kNew,
    kNewFrom,
    kCopy,
    kAdd,
    kRemove,
    kMove,
    kEdit,
    kLimit,
    kLimitSet,
    kLimitRemove,
    kRecordOnly,
    kOptions,
    kFilter,
    kLeads,
    kEquipmentIs,
    kRun,
    kTamper
  };

  Kind kind = Kind::kNew;
  std::string file;
  std::string other;          ///< the document that `kNewFrom` and `kCopy` read
  std::vector<int> tests;     ///< of the catalogue
  std::vector<int> elements;  ///< identifiers
  std::string place;          ///< "--to", "--before", "--after", "--to-end" or empty
  int placeOf = 0;
  std::vector<std::pair<int, std::string>> fields;  ///< of the equipment, 0 to 3
  Limit limit;
  std::string lowText, highText;
  bool also = false;
  std::string set;
  int number = 0;    ///< options or mOhm
  std::string text;  ///< of a filter; serial number of a tester
  Equipment equipment;
  int testId = 0, setting = 0;
  Amount amount;  ///< what the equipment has from now on, as the tester sees it
  RunSetup run;
  Tampering tampering;
};

/// The command's arguments without the program's name; empty if no command does this.
/// @param folder of the documents
std::vector<std::string> ArgumentsOf(const Operation& operation, const std::string& folder);

/// As a person would type it, with what happened meanwhile as a remark.
std::string TextOf(const Operation& operation);

}  // namespace history
