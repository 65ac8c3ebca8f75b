#pragma once

#include "host/judge/Case.h"
#include "host/judge/Verdict.h"

namespace host::judge {

/// Decides what counts. A result counts when it is current: the last run that took up the element finished
/// it, as the same test with the same settings on the same equipment; its record is unchanged; and the result
/// that the plug-in saved agrees with it. Value and judgement are computed again from the tester's replies.
/// Where they differ from the plug-in's, the element is doubtful. No saved verdict is trusted.
JudgedDocument Judge(const Case& document);

}  // namespace host::judge
