#pragma once

#include <memory>

namespace bench::headless {
class Control;
}

namespace bench::qt {

class Presenter;
class WidgetMirror;

/// The presenter for the control's class; empty for what shows nothing.
std::unique_ptr<Presenter> MakePresenter(WidgetMirror& mirror, headless::Control& control);

}  // namespace bench::qt
