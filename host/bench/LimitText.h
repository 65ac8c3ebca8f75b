#pragma once

#include <string>

#include "host/standards/ElementLimits.h"

namespace host::bench {

/// "at least 2 at most 7 MOhm"; empty without bounds.
std::string BoundsText(const std::string& low, const std::string& high, const std::string& unit);

/// "IEC 62353, 2014, class I"
std::string StandardText(const std::string& name, const std::string& description);

/// "IEC 62353, 2014, class I: at most 300 mOhm"
std::string TextOf(const standards::LimitOfElement& limit);

/// What a test without a limit needs, for the person who has just set or removed limits.
std::string NeedsALimit();

}  // namespace host::bench
