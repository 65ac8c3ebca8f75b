#include "tests/system/history/Person.h"

#include <utility>

#include "host/run/GuideToolbar.h"

namespace history {

namespace guide = bench::guide;

void Person::OnWindowReady(const Form& form) {
  if (form->Name() == guide::kYesNoForm) return bench::ClickButton(*form, guide::kYes);
  if (form->Name() == guide::kPretestForm) return bench::ClickButton(*form, guide::kPretestOk);
  if (form->Name() == guide::kGuideForm) OperateGuide(form);
}

void Person::OperateGuide(const Form& form) {
  const auto press = next_ < presses_.size() ? presses_[next_++] : Press::kPlayThenNext;
  listener_(press, true);
  switch (press) {
    case Press::kPlayTwice:
      Click(form, guide::kPlay);
      [[fallthrough]];
    case Press::kPlayThenNext:
      Click(form, guide::kPlay);
      break;
    case Press::kPlayThenPrevious:
      Click(form, guide::kPlay);
      Click(form, guide::kPrevious);
      break;
    case Press::kNotApplicable:
      Click(form, guide::kNotApplicable);
      break;
    case Press::kSkip:
      Click(form, guide::kSkip);
      break;
    case Press::kAbort:
      Click(form, guide::kAbort);
      break;
    case Press::kNext:
      break;
  }
  Click(form, guide::kNext);
  if (form->Visible()) form->Hide();
}

void Person::Click(const Form& form, std::int32_t button) const {
  const auto toolbar = form->Visible() ? bench::GuideToolbar(*form) : nullptr;
  if (toolbar) toolbar->Click(button);
}

void Person::Abort() {
  application_->Post([this, alive = std::weak_ptr<int>(alive_)] {
    if (alive.expired()) return;
    for (const auto& form : application_->Forms()) {
      if (form->Name() != guide::kGuideForm || !form->Visible()) continue;
      listener_(Press::kAbort, false);
      return Click(form, guide::kAbort);
    }
  });
}

}  // namespace history
