#pragma once

#include <string>

#include "host/judge/Verdict.h"

namespace host::archive::words {

/// The names of verdicts in the tables. They never change, unlike the texts that programs print.

std::string Of(judge::Verdict verdict);
std::string Of(judge::Outcome outcome);
std::string Of(judge::LimitVerdict verdict);

/// The other way round; `ArchiveError` for a word that the archive does not know.
judge::Verdict VerdictOf(const std::string& word);
judge::Outcome OutcomeOf(const std::string& word);
judge::LimitVerdict LimitVerdictOf(const std::string& word);

}  // namespace host::archive::words
