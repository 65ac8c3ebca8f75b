#pragma once

#include <string>
#include <vector>

#include "platform/Layout.h"

namespace keld {

/// The layout of a prompt: its text on top, its buttons side by side below, in the middle of the window.
orvik::platform::Grid PromptLayout(const std::string& sText, const std::vector<std::string>& asButtons);

}  // namespace keld
