#pragma once

#include <memory>

namespace bench::headless {
class Control;
}

namespace bench::qt {

class Presenter;
class WidgetMirror;

/// Creates the presenter for the control's class; empty for invisible controls.
std::unique_ptr<Presenter> MakePresenter(WidgetMirror& mirror, headless::Control& control);

}  // namespace bench::qt
