#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "tests/system/history/World.h"

namespace history {

/// Verdicts by their names, such as "not tested".
using Verdicts = std::set<std::string>;

/// The permitted verdicts of each element of a document, by what was really measured. Shares no code with the
/// program's judge and its record of runs.
class Oracle {
 public:
  /// The program's verdict of an element.
  using Said = std::function<std::string(int element)>;

  explicit Oracle(const DocumentState& document) : document_(document) {}

  /// One verdict if everything is known; several if a disturbance may or may not have had an effect.
  /// @param said verdicts that were checked before; a group follows its children
  Verdicts Allowed(const Element& element, const Said& said) const;

 private:
  const Record* RecordOf(int element) const;
  bool StillHolds(const Element& element, const Record& record) const;
  Verdicts ByRecord(const Element& element, const Record& record, const Said& said) const;
  Verdicts OfTest(const Element& element, const Record& record) const;
  std::string Exactly(const Element& element, const Record& record) const;
  bool CouldHaveFailed(const Element& element, const Record& record) const;

  bool FailedBefore(const Element& element) const;

  Verdicts OfGroup(const Element& group, const Record& record, const Said& said) const;
  bool HasMovedIn(const Element& group, const Record& record) const;
  bool OlderThanAChild(const Element& group, const Record& record) const;
  /// The result of the group's filter for the readings that count.
  struct Summary {
    std::optional<Amount> amount;
    bool known = true, mixed = false;
  };
  Summary SummaryOf(const Element& group) const;
  Summary ValueOf(const Element& element) const;

  const DocumentState& document_;
};

}  // namespace history
