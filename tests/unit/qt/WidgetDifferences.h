#pragma once

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace toolkit::headless {
class Application;
}
namespace orvik::platform {
class IControl;
}

namespace support {

/// Finds the widget of a control; null when it is not on the screen.
using WidgetFinder = std::function<QWidget*(const orvik::platform::IControl&)>;

/// Where the widgets on the screen do not show what their windows hold: one line each, empty when they are
/// the same. Looks at every loaded form, its controls, and theirs.
std::vector<std::string> Differences(const WidgetFinder& widgetOf,
                                     const toolkit::headless::Application& application);

}  // namespace support
