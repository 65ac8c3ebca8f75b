#pragma once

#include "host/judge/Case.h"
#include "host/judge/Verdict.h"

namespace bench::judge {

/// What counts. A result counts when it is current: the last run that took up the element finished it, as the
/// same test with the same settings on the same equipment, its record is as it was written, and what the
/// plug-in saved agrees with it. Value and judgement are computed again from what the tester said; where that
/// differs from the plug-in's, the element is doubtful. Nothing that was saved is believed.
JudgedDocument Judge(const Case& document);

}  // namespace bench::judge
