#pragma once

#include <memory>

namespace toolkit::headless {
class Control;
}

namespace host::qt {

class Presenter;
class WidgetMirror;

/// Creates the presenter for the control's class; empty for invisible controls.
std::unique_ptr<Presenter> MakePresenter(WidgetMirror& mirror, toolkit::headless::Control& control);

}  // namespace host::qt
