#pragma once

#include "host/judge/Case.h"
#include "host/judge/Records.h"
#include "host/judge/Verdict.h"

namespace host::judge {

/// Judges a single test whose record is current.
void JudgeTest(const CaseElement& element, const LastRecord& last, JudgedElement& judged);

/// The doubts noted while the element ran, and those about its record.
std::vector<document::Reason> RecordDoubts(const CaseElement& element, const LastRecord& last);

/// Adds the reason unless there is one with the same code.
void AddOnce(std::vector<document::Reason>& reasons, document::Reason reason);

}  // namespace host::judge
