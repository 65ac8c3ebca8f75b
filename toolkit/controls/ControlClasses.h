#pragma once

#include <array>
#include <memory>

#include "OrvikTypeLib/IHost.h"
#include "OrvikTypeLib/ILanguageService.h"

namespace toolkit::headless {
class Application;
}

namespace toolkit::controls {

/// A composite control that a host registers as one of its own classes.
struct ControlClass {
  const char* identifier;
  /// @param language translates the control's texts; without it they stay English
  std::shared_ptr<orvik::IObject> (*create)(std::shared_ptr<orvik::ILanguageService> language);
};

/// All composite controls.
const std::array<ControlClass, 4>& ControlClasses();

/// Makes the application create user controls through the host: the host's own and those of plug-ins. The
/// application keeps only a weak reference to the host.
void ConnectControls(headless::Application& application, orvik::IHost& host);

}  // namespace toolkit::controls
