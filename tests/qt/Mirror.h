#pragma once

#include <string>
#include <vector>

namespace bench::headless {
class Application;
}
namespace bench::qt {
class Screen;
}

namespace support {

/// Where the widgets on the screen do not show what their windows hold: one line each, empty when they are
/// the same. Looks at every loaded form, its controls, and theirs.
std::vector<std::string> Differences(const bench::qt::Screen& screen,
                                     const bench::headless::Application& application);

}  // namespace support
