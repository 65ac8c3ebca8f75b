#pragma once

#include <optional>

#include "host/judge/Case.h"
#include "host/judge/Records.h"

namespace bench::judge {

/// Why the element's last record says nothing of the element as it is now: not recorded, not finished,
/// another test, other settings, other equipment, or another result in the document. None when it is current.
std::optional<Reason> NotCurrent(const CaseElement& element, const LastRecord& last,
                                 const Equipment& equipment);

}  // namespace bench::judge
