#include "ui/FTestGuide.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITgContentPane.h"
#include "OrvikTypeLib/ITgToolbar.h"
#include "model/IKELDTest.h"
#include "platform/IForm.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "results/ElementName.h"
#include "results/XKELDResultView.h"
#include "ui/WhileAlive.h"

// The operations that the element calls; FTestGuideCommands.cpp has what the operator's buttons do.
namespace keld::ui {

using orvik::As;
using orvik::Required;

std::shared_ptr<FTestGuide> FTestGuide::Create() {
  auto Created = std::make_shared<FTestGuide>();
  Created->mWindow.Form = MKELDGlobalVars::Application()->CreateForm("FTestGuide");
  return Created;
}

FTestGuide::~FTestGuide() {
  mCloseRequested.End();
  mResultsMouseUp.End();
  // A loaded window would outlive the guide and could not be closed.
  if (mWindow.Form) Attempt([&] { mWindow.Form->Unload(); });
}

void FTestGuide::Load() {
  auto& Window = Required(mWindow.Form);
  if (!fBuilt) {
    // First, before anything that can fail: the window must always be closable.
    mCloseRequested = Window.CloseRequested().Subscribe(
        WhileAlive(As<FTestGuide>(shared_from_this()), &FTestGuide::OnCloseRequested));
    fBuilt = true;
    mWindow.Build();
    Listen();
    Attempt([&] {
      Required(mWindow.xtbToolbar)
          .AddEntry(kCommandTools, kCommandCalibrate,
                    MKELDGlobalVars::Shown(MKELDLanguageConstants::kCalibrateEntry));
    });
  }
  Window.Load();
}

void FTestGuide::Listen() {
  const auto Self = As<FTestGuide>(shared_from_this());
  Attempt([&] { Required(mWindow.xtbToolbar).Advise(Self); });
  Attempt([&] {
    mResultsMouseUp =
        Required(mWindow.xrvResultView).MouseUp().Subscribe(WhileAlive(Self, &FTestGuide::OnResultsMouseUp));
  });
}

void FTestGuide::Initialize(std::shared_ptr<orvik::ITestElement> iteElement,
                            std::shared_ptr<orvik::IRunController> RunController) {
  mTest = As<model::IKELDTest>(iteElement);
  mElement = iteElement;
  mRunController = RunController;
  fRanHere = false;
  Load();
  auto& Window = Required(mWindow.Form);
  if (Window.Caption().empty()) Window.SetCaption(MKELDGlobalVars::Shown(MKELDLanguageConstants::kTestGuide));
  // Each in its own step: a failing pane must not disable the buttons.
  Attempt([&] { Required(mWindow.xstShowMTI).SetTestElement(iteElement); });
  Attempt([&] { RefreshInstrumentData(); });
  Attempt([&] { ShowGuidance(); });
  Attempt([&] { SetButtons(); });
  Attempt([&] { SelectStandard(1); });
}

void FTestGuide::ShowGuidance() {
  const auto iteElement = mElement.lock();
  Required(mWindow.xtwWizard).SetGuidance(iteElement ? results::ElementName(*iteElement) : std::string());
}

void FTestGuide::ShowModal() {
  const auto Self = shared_from_this();
  Load();
  mWindow.Form->ShowModal(MKELDGlobalVars::Application()->ActiveForm());
}

void FTestGuide::Hide() { Required(mWindow.Form).Hide(); }

void FTestGuide::Unload() { Required(mWindow.Form).Unload(); }

void FTestGuide::Refresh() {
  RefreshInstrumentData();
  Required(mWindow.Form).Refresh();
}

void FTestGuide::RefreshInstrumentData() { Required(mWindow.xstShowMTI).Refresh(); }

void FTestGuide::ShowResult(std::shared_ptr<orvik::ITestElement> iteElement) {
  Required(mWindow.xrvResultView).ShowResult(iteElement);
}

void FTestGuide::SelectStandard(std::int32_t lIndex) {
  const auto Controller = mRunController.lock();
  const auto Standards = Controller ? Controller->Standards() : nullptr;
  const std::int32_t lCount = Standards ? Standards->Count() : 0;
  auto& Results = Required(mWindow.xrvResultView);
  if (lCount == 0) {
    lStandard = 0;
    Results.SelectStandard("", "");
    return;
  }
  // Wraps around after the last.
  lStandard = lIndex > lCount ? 1 : lIndex;
  const auto Shown = Standards->item(lStandard);
  Results.SelectStandard(Required(Shown).Name(), Shown->Description());
}

}  // namespace keld::ui
