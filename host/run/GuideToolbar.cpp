#include "host/run/GuideToolbar.h"

#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IUserControl.h"

namespace host::run {

namespace platform = orvik::platform;

std::shared_ptr<orvik::ITgToolbar> GuideToolbar(const platform::IForm& form) {
  const auto site =
      std::dynamic_pointer_cast<platform::IContainerSite>(form.Find(plugins::keld::guide::kToolbar));
  return site ? std::dynamic_pointer_cast<orvik::ITgToolbar>(site->Object()) : nullptr;
}

void ShowJudgement(const platform::IApplication& application, const std::string& text) {
  for (const auto& form : application.Forms()) {
    if (form->Name() != plugins::keld::guide::kGuideForm || !form->Visible()) continue;
    const auto site =
        std::dynamic_pointer_cast<platform::IContainerSite>(form->Find(plugins::keld::guide::kToolbar));
    const auto label = site ? site->Panel()->Find(plugins::keld::guide::kJudgement) : nullptr;
    if (!label) continue;
    label->SetCaption(text);
    label->SetVisible(!text.empty());
  }
}

std::string CaptionOf(const platform::IForm& form, const std::string& control) {
  const auto found = form.Find(control);
  return found ? found->Caption() : std::string();
}

void ClickButton(const platform::IForm& form, const std::string& button) {
  if (const auto found = std::dynamic_pointer_cast<platform::IButton>(form.Find(button))) found->Click();
}

void LeaveGuide(const platform::IApplication& application) {
  // The prompt first: the guide does not react behind it.
  const auto form = application.ActiveForm();
  if (!form) return;
  if (form->Name() == plugins::keld::guide::kPretestForm)
    ClickButton(*form, plugins::keld::guide::kPretestOk);
  if (form->Name() == plugins::keld::guide::kYesNoForm) ClickButton(*form, plugins::keld::guide::kNo);
  const auto guideForm = application.ActiveForm();
  if (!guideForm || guideForm->Name() != plugins::keld::guide::kGuideForm) return;
  const auto toolbar = GuideToolbar(*guideForm);
  if (!toolbar) return;
  // Only one of them is enabled: stop while a test runs, next otherwise.
  toolbar->Click(plugins::keld::guide::kStop);
  toolbar->Click(plugins::keld::guide::kNext);
}

}  // namespace host::run
