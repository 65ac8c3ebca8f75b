#pragma once

#include <string>
#include <vector>

#include "host/document/RunRecord.h"
#include "host/judge/Verdict.h"

namespace host::report {

/// A value with its unit as people read it, such as "123 mOhm"; "OL" for an overloaded reading, "-" without
/// one.
std::string ReadingText(const judge::JudgedElement& element);

/// Why the element counts as it does, a sentence each, in the reader's language; none for one that passed.
std::vector<std::string> ReasonTexts(const judge::JudgedElement& element);

/// Asset number, maker, model and serial number, as far as they are known: "PUMP-7, Maker, M1, 2209-117".
std::string EquipmentText(const document::Equipment& equipment);

/// Type, serial number, firmware and test leads of the tester, as one line without its end.
std::string TesterLine(const document::RecordedTester& tester);

}  // namespace host::report
