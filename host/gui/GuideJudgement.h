#pragma once

#include <string>
#include <vector>

#include "host/report/Report.h"

namespace host::gui {

/// A few lines for the guide on how its tests were judged: sign and word of its own test and of each test in
/// a group that has not passed; for a failed one every standard with its bounds, for an open one the reasons.
/// @param sections of the tests that have finished in the guide
std::string GuideJudgement(const std::vector<report::Section>& sections);

}  // namespace host::gui
