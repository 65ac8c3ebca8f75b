#pragma once

#include <optional>

#include "host/judge/Case.h"
#include "host/judge/Records.h"

namespace host::judge {

/// Why the element's last record does not apply to the element as it is now: not recorded, not finished, or
/// with another test, settings, equipment or saved result. None when it is current.
std::optional<document::Reason> NotCurrent(const CaseElement& element, const LastRecord& last,
                                           const document::Equipment& equipment);

}  // namespace host::judge
