#include "host/run/AutoOperator.h"

#include "host/run/GuideToolbar.h"

namespace bench {

AutoOperator::AutoOperator(std::shared_ptr<orvik::platform::IApplication> application, StopRequest& stop)
    : application_(std::move(application)),
      stop_(stop),
      shown_(application_->FormShown().Subscribe([this](const Form& form) { Shown(form); })),
      stopAsked_(stop.Happened().Subscribe([this] { PressStop(); })) {}

void AutoOperator::Shown(const Form& form) {
  // The window is shown first, and operated once it waits for the operator.
  application_->Post([this, form, alive = std::weak_ptr<int>(alive_)] {
    if (!alive.expired()) Operate(form);
  });
}

void AutoOperator::Operate(const Form& form) {
  if (!form->Visible()) return;
  if (form->Name() == guide::kGuideForm) OperateGuide(form);
  if (form->Name() == guide::kPretestForm) Acknowledge(form, guide::kPretestOk);
  if (form->Name() == guide::kYesNoForm) Acknowledge(form, guide::kYes);
}

void AutoOperator::OperateGuide(const Form& form) {
  const auto toolbar = GuideToolbar(*form);
  if (toolbar && !stop_.Asked()) toolbar->Click(guide::kPlay);  // returns when the run is over
  if (toolbar && form->Visible()) toolbar->Click(guide::kNext);
  // Whatever the guide makes of its buttons, the run goes on.
  if (form->Visible()) form->Hide();
}

void AutoOperator::Acknowledge(const Form& form, const char* button) {
  prompted_.Raise(CaptionOf(*form, guide::kPromptText));
  ClickButton(*form, button);
  // A prompt keeps the guide from answering, so a stop may not have reached it.
  if (stop_.Asked())
    application_->Post([this, alive = std::weak_ptr<int>(alive_)] {
      if (!alive.expired()) PressStop();
    });
}

void AutoOperator::PressStop() {
  for (const auto& form : application_->Forms()) {
    if (form->Name() != guide::kGuideForm || !form->Visible()) continue;
    if (const auto toolbar = GuideToolbar(*form)) toolbar->Click(guide::kStop);
  }
}

}  // namespace bench
