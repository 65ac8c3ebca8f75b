#include "host/toolkit/qt/ProgressBarPresenter.h"

#include <algorithm>

namespace bench::qt {

ProgressBarPresenter::ProgressBarPresenter(Stage& stage, headless::Control& control)
    : PresenterFor(stage, control, new QProgressBar) {
  GetShown().setTextVisible(false);
}

void ProgressBarPresenter::SyncOwn() {
  const int minimum = GetModel().Minimum();
  // A range without length would show endless motion.
  GetShown().setRange(minimum, std::max(GetModel().Maximum(), minimum + 1));
  GetShown().setValue(GetModel().Value());
}

}  // namespace bench::qt
