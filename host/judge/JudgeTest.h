#pragma once

#include "host/judge/Case.h"
#include "host/judge/Records.h"
#include "host/judge/Verdict.h"

namespace bench::judge {

/// Judges a single test whose record is current.
void JudgeTest(const CaseElement& element, const LastRecord& last, JudgedElement& judged);

/// What was noted while the element ran, and what its record itself raises.
std::vector<Reason> RecordDoubts(const CaseElement& element, const LastRecord& last);

/// Adds the reason unless one of its code is there.
void AddOnce(std::vector<Reason>& reasons, Reason reason);

}  // namespace bench::judge
