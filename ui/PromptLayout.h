#pragma once

#include <string>
#include <vector>

#include "platform/Layout.h"

namespace keld::ui {

/// The layout of a prompt: the text above its buttons, which are centred side by side.
orvik::platform::Grid PromptLayout(const std::string& sText, const std::vector<std::string>& asButtons);

}  // namespace keld::ui
