#include "ui/FPretestPrompt.h"

#include "platform/Controls.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "ui/PromptLayout.h"
#include "ui/WhileAlive.h"

namespace keld::ui {

using orvik::Required;

std::shared_ptr<FPretestPrompt> FPretestPrompt::Create() {
  auto Created = std::make_shared<FPretestPrompt>();
  Created->BuildWindow();
  Created->Listen();
  return Created;
}

FPretestPrompt::~FPretestPrompt() {
  for (auto& Held : mSubscriptions) Held.End();
  // A loaded window would outlive the prompt.
  if (mForm) Attempt([&] { mForm->Unload(); });
}

void FPretestPrompt::BuildWindow() {
  mForm = MKELDGlobalVars::Application()->CreateForm("FPretestPrompt");
  auto& Window = Required(mForm);
  lblPrompt = Window.AddLabel("lblPrompt");
  cmdOK = Window.AddButton("cmdOK");
  Window.SetGrid(PromptLayout("lblPrompt", {"cmdOK"}));
}

void FPretestPrompt::Listen() {
  const auto Self = shared_from_this();
  mSubscriptions[0] = cmdOK->Clicked().Subscribe(WhileAlive(Self, &FPretestPrompt::Unload));
  mSubscriptions[1] = mForm->Activated().Subscribe(WhileAlive(Self, &FPretestPrompt::OnActivated));
  mSubscriptions[2] = mForm->Unloading().Subscribe(WhileAlive(Self, &FPretestPrompt::OnUnloading));
}

void FPretestPrompt::SetPrompt(const std::string& sText, const std::string& sNewTag) {
  sTag = sNewTag;
  lblPrompt->SetCaption(sText);
  mForm->SetCaption(MKELDGlobalVars::Shown(MKELDLanguageConstants::kPretestTitle));
  cmdOK->SetCaption(MKELDGlobalVars::Shown(MKELDLanguageConstants::kOK));
  Load();
}

void FPretestPrompt::Load() {
  if (mForm->Loaded()) return;
  const auto Self = shared_from_this();
  fActivated = false;
  mForm->Load();
  mPromptStatus.Raise(kStatusLoaded);
}

void FPretestPrompt::Show() {
  const auto Self = shared_from_this();
  Load();
  mForm->Show();
}

void FPretestPrompt::ShowModal() {
  const auto Self = shared_from_this();
  Load();
  mForm->ShowModal(MKELDGlobalVars::Application()->ActiveForm());
}

void FPretestPrompt::Unload() { mForm->Unload(); }

void FPretestPrompt::OnActivated() {
  mForm->SetTopmost(true);
  mPromptStatus.Raise(kStatusActivated);
  // After the event, on purpose; the yes/no prompt sets it before.
  fActivated = true;
}

void FPretestPrompt::OnUnloading() { mPromptStatus.Raise(kStatusUnloading); }

}  // namespace keld::ui
