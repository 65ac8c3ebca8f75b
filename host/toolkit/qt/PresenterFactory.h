#pragma once

#include <memory>

namespace bench::headless {
class Control;
}

namespace bench::qt {

class Presenter;
class Stage;

/// The presenter for the control's class; empty for what shows nothing.
std::unique_ptr<Presenter> MakePresenter(Stage& stage, headless::Control& control);

}  // namespace bench::qt
