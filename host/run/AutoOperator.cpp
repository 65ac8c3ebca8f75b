#include "host/run/AutoOperator.h"

#include "host/run/GuideToolbar.h"

namespace host::run {

void AutoOperator::OnWindowReady(const Form& form) {
  if (form->Name() == plugins::keld::guide::kGuideForm) OperateGuide(form);
  if (form->Name() == plugins::keld::guide::kPretestForm) Acknowledge(form, plugins::keld::guide::kPretestOk);
  if (form->Name() == plugins::keld::guide::kYesNoForm) Acknowledge(form, plugins::keld::guide::kYes);
}

void AutoOperator::OperateGuide(const Form& form) {
  const auto toolbar = GuideToolbar(*form);
  if (toolbar && !stop_.Asked())
    toolbar->Click(plugins::keld::guide::kPlay);  // returns when the test is over
  if (toolbar && form->Visible()) toolbar->Click(plugins::keld::guide::kNext);
  // The run continues even if the guide ignores its buttons.
  if (form->Visible()) form->Hide();
}

void AutoOperator::Acknowledge(const Form& form, const char* button) {
  if (prompted_) prompted_(CaptionOf(*form, plugins::keld::guide::kPromptText));
  ClickButton(*form, button);
  // The guide does not react behind a prompt, so an earlier stop may not have reached it.
  if (stop_.Asked())
    application_->Post([this, alive = std::weak_ptr<int>(alive_)] {
      if (!alive.expired()) OnStopRequested();
    });
}

void AutoOperator::OnStopRequested() {
  for (const auto& form : application_->Forms()) {
    if (form->Name() != plugins::keld::guide::kGuideForm || !form->Visible()) continue;
    if (const auto toolbar = GuideToolbar(*form)) toolbar->Click(plugins::keld::guide::kStop);
  }
}

}  // namespace host::run
