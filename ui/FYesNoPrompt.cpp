#include "ui/FYesNoPrompt.h"

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

std::shared_ptr<FYesNoPrompt> FYesNoPrompt::Create() {
  auto Created = std::make_shared<FYesNoPrompt>();
  Created->BuildWindow();
  Created->Listen();
  return Created;
}

FYesNoPrompt::~FYesNoPrompt() {
  for (auto& Held : mSubscriptions) Held.End();
  // A loaded window would outlive the prompt and could not be answered.
  if (mForm) Attempt([&] { mForm->Unload(); });
}

void FYesNoPrompt::BuildWindow() {
  mForm = MKELDGlobalVars::Application()->CreateForm("FYesNoPrompt");
  auto& Window = Required(mForm);
  lblPrompt = Window.AddLabel("lblPrompt");
  cmdAccept = Window.AddButton("cmdAccept");
  cmdDecline = Window.AddButton("cmdDecline");
  Window.SetKeyPreview(true);
  Window.SetGrid(PromptLayout("lblPrompt", {"cmdAccept", "cmdDecline"}));
}

void FYesNoPrompt::Listen() {
  const auto Self = shared_from_this();
  mSubscriptions[0] = cmdAccept->Clicked().Subscribe(WhileAlive(Self, &FYesNoPrompt::Accept));
  mSubscriptions[1] = cmdDecline->Clicked().Subscribe(WhileAlive(Self, &FYesNoPrompt::Decline));
  mSubscriptions[2] = mForm->Activated().Subscribe(WhileAlive(Self, &FYesNoPrompt::OnActivated));
  mSubscriptions[3] = mForm->KeyDown().Subscribe(WhileAlive(Self, &FYesNoPrompt::OnKeyDown));
  mSubscriptions[4] = mForm->Unloading().Subscribe(WhileAlive(Self, &FYesNoPrompt::OnUnloading));
  mSubscriptions[5] = mForm->CloseRequested().Subscribe(WhileAlive(Self, &FYesNoPrompt::OnCloseRequested));
}

void FYesNoPrompt::Load() {
  if (mForm->Loaded()) return;
  const auto Self = shared_from_this();
  mForm->SetCaption(MKELDLanguageConstants::kYesNoTitle);
  lblPrompt->SetCaption(MKELDLanguageConstants::kEndTest);
  cmdAccept->SetCaption(MKELDLanguageConstants::kYes);
  cmdDecline->SetCaption(MKELDLanguageConstants::kNo);
  MKELDGlobalVars::TranslateCaptions(mForm);
  fActivated = false;
  mForm->Load();
  // Return or the space bar alone must not give consent.
  cmdDecline->SetFocus();
  mYesNoStatusChanged.Raise(kStatusLoaded, Self);
}

void FYesNoPrompt::SetPrompt(const std::string& sText) {
  const auto Self = shared_from_this();
  Load();
  lblPrompt->SetCaption(MKELDGlobalVars::Shown(sText));
}

void FYesNoPrompt::Show() {
  const auto Self = shared_from_this();
  Load();
  mForm->Show();
}

void FYesNoPrompt::ShowModal() {
  const auto Self = shared_from_this();
  Load();
  mForm->ShowModal(MKELDGlobalVars::Application()->ActiveForm());
}

void FYesNoPrompt::Hide() { mForm->Hide(); }

void FYesNoPrompt::Unload() { mForm->Unload(); }

void FYesNoPrompt::OnActivated() {
  const auto Self = shared_from_this();
  mForm->SetTopmost(true);
  fActivated = true;
  mYesNoStatusChanged.Raise(kStatusActivated, Self);
}

void FYesNoPrompt::Answer(std::int32_t lOption) {
  mYesNoOption.Raise(lOption);
  // The window stays loaded; the caller unloads it.
  mForm->Hide();
}

void FYesNoPrompt::OnKeyDown(int iKey, int /*iShift*/) {
  if (iKey == orvik::platform::kKeyY) Accept();
  if (iKey == orvik::platform::kKeyN) Decline();
}

// Closing the window is not consent.
void FYesNoPrompt::OnCloseRequested(bool& fKeepOpen) {
  fKeepOpen = true;
  Decline();
}

void FYesNoPrompt::OnUnloading() { mYesNoStatusChanged.Raise(kStatusUnloading, shared_from_this()); }

}  // namespace keld::ui
