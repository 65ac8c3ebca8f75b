#include "tests/system/history/Person.h"

#include <utility>

#include "host/run/GuideToolbar.h"

namespace history {

namespace guide = host::plugins::keld::guide;

void Person::OnWindowReady(const Form& form) {
  if (form->Name() == host::plugins::keld::guide::kYesNoForm)
    return host::run::ClickButton(*form, host::plugins::keld::guide::kYes);
  if (form->Name() == host::plugins::keld::guide::kPretestForm)
    return host::run::ClickButton(*form, host::plugins::keld::guide::kPretestOk);
  if (form->Name() == host::plugins::keld::guide::kGuideForm) OperateGuide(form);
}

void Person::OperateGuide(const Form& form) {
  const auto press = next_ < presses_.size() ? presses_[next_++] : Press::kPlayThenNext;
  listener_(press, true);
  switch (press) {
    case Press::kPlayTwice:
      Click(form, host::plugins::keld::guide::kPlay);
      [[fallthrough]];
    case Press::kPlayThenNext:
      Click(form, host::plugins::keld::guide::kPlay);
      break;
    case Press::kPlayThenPrevious:
      Click(form, host::plugins::keld::guide::kPlay);
      Click(form, host::plugins::keld::guide::kPrevious);
      break;
    case Press::kNotApplicable:
      Click(form, host::plugins::keld::guide::kNotApplicable);
      break;
    case Press::kSkip:
      Click(form, host::plugins::keld::guide::kSkip);
      break;
    case Press::kAbort:
      Click(form, host::plugins::keld::guide::kAbort);
      break;
    case Press::kNext:
      break;
  }
  Click(form, host::plugins::keld::guide::kNext);
  if (form->Visible()) form->Hide();
}

void Person::Click(const Form& form, std::int32_t button) const {
  const auto toolbar = form->Visible() ? host::run::GuideToolbar(*form) : nullptr;
  if (toolbar) toolbar->Click(button);
}

void Person::Abort() {
  application_->Post([this, alive = std::weak_ptr<int>(alive_)] {
    if (alive.expired()) return;
    for (const auto& form : application_->Forms()) {
      if (form->Name() != host::plugins::keld::guide::kGuideForm || !form->Visible()) continue;
      listener_(Press::kAbort, false);
      return Click(form, host::plugins::keld::guide::kAbort);
    }
  });
}

}  // namespace history
