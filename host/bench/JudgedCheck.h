#pragma once

#include <string>
#include <vector>

#include "host/document/Findings.h"
#include "host/judge/Verdict.h"

namespace host::bench {

/// What the judge found in a document that contradicts itself, each at the line of its element: results that
/// are not the recorded ones, limits that nothing can be compared with. Doubts about a measurement are notes.
/// @param text of the document that was judged
std::vector<document::Finding> CheckJudged(const std::string& text, const judge::JudgedDocument& judged);

}  // namespace host::bench
