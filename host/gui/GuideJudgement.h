#pragma once

#include <string>
#include <vector>

#include "host/report/Report.h"

namespace bench::desktop {

/// What the guide shows of how its tests were judged, a few lines at most: sign and word for its own test and
/// for each test in a group that has not passed; of a failed one every standard that judged it with its
/// bounds, of one that is open the reasons.
/// @param sections of the tests that have finished in the guide
std::string GuideJudgement(const std::vector<report::Section>& sections);

}  // namespace bench::desktop
