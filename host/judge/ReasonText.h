#pragma once

#include <string>

#include "host/document/Reason.h"

namespace host::judge {

/// The reason as a sentence in the reader's language, without a full stop. A code of another version of this
/// program is shown as it is, with its arguments.
std::string ReasonText(const document::Reason& reason);

}  // namespace host::judge
