#pragma once

#include <vector>

#include "host/judge/Case.h"
#include "host/judge/Records.h"
#include "host/judge/Verdict.h"

namespace host::judge {

/// A child of a group, already judged.
struct Child {
  const JudgedElement* judged = nullptr;
  LastRecord last;
};

/// Why the group's record is older than its children's: a child was taken up again afterwards, or in a later
/// run. None when it is not.
std::optional<document::Reason> OlderThanChildren(const LastRecord& group,
                                                  const std::vector<Child>& children);

/// Judges a group whose record is current: by its children, and by its own limits on the value that its
/// filter selects from its children's readings.
void JudgeGroup(const CaseElement& element, const LastRecord& last, const std::vector<Child>& children,
                JudgedElement& judged);

}  // namespace host::judge
