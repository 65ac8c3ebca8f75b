#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "instrument/CKELDInstrument.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDElement.h"
#include "plugin/base/Attempt.h"
#include "results/CKELDResultData.h"
#include "ui/FTestGuide.h"
#include "ui/FYesNoPrompt.h"

// The frame of a run that single tests and sequences share.
namespace keld::model {

using orvik::As;
using orvik::Required;

void CKELDElement::ITestElement_Perform(std::shared_ptr<orvik::IRunController> RunController) {
  const auto Self = shared_from_this();
  mRunController = RunController;
  Attempt([&] { EnsureResult(); });
  fStandaloneRun = true;
  if (MayStart()) GuideOperator(RunController);
  fStandaloneRun = false;
}

void CKELDElement::GuideOperator(const std::shared_ptr<orvik::IRunController>& RunController) {
  Navigate(orvik::Navigation::kNext);
  Attempt([&] { mTestGuide = ui::FTestGuide::Create(); });
  Attempt([&] { Required(mTestGuide).Load(); });
  Attempt([&] { Required(mTestGuide).Initialize(SelfElement(), RunController); });
  Attempt([&] { Required(mTestGuide).ShowModal(); });
  Attempt([&] { Required(mTestGuide).Unload(); });
  mTestGuide.reset();
}

bool CKELDElement::MayStart() {
  return AttemptValue(false, [&] { return Required(mRunController)->StartQuery(SelfElement()); });
}

std::shared_ptr<results::CKELDResultData> CKELDElement::ResultData() const {
  return As<results::CKELDResultData>(Result());
}

std::shared_ptr<results::CKELDResultData> CKELDElement::EnsureResult() {
  if (!Result()) {
    Required(BaseElement()).SetResult(results::CKELDResultData::Create());
    OwnResult();
  }
  return ResultData();
}

void CKELDElement::RecordNotApplicable() {
  Attempt([&] { EnsureResult(); });
  Attempt([&] { Required(ResultData()).SetStatus(orvik::ResultStatus::kNotApplicable); });
  Attempt([&] { Required(ResultData()).SetMeasurement(nullptr); });
  Attempt([&] { Required(ResultData()).BuildServiceRecord(SelfElement()); });
}

void CKELDElement::RecordAbort(std::int32_t lStatus) {
  Attempt([&] { Required(ResultData()).SetStatus(lStatus); });
  Attempt([&] { Required(ResultData()).BuildServiceRecord(SelfElement()); });
}

bool CKELDElement::FailsOwnLimits(instrument::CKELDMeasurement& Measurement) const {
  const auto Standards = Required(mRunController)->Standards();
  static_cast<void>(Required(Standards));
  // Ask the base element: `Limits()` of this element would hide the error.
  return Measurement.FailsLimits(Required(mBaseElement).Limits(), Standards);
}

void CKELDElement::NotifyFinished() {
  Attempt([&] { Required(mRunController)->FinishedNotice(SelfElement()); });
}

void CKELDElement::HideGuide() {
  Attempt([&] { Required(mTestGuide).Hide(); });
}

void CKELDElement::Navigate(std::int32_t lRequest) {
  Attempt([&] { Required(mRunController)->NavigationRequest(lRequest); });
}

void CKELDElement::ShowResultInGuide() {
  Attempt([&] { Required(mTestGuide).ShowResult(SelfElement()); });
}

void CKELDElement::CloseLink() {
  const auto Closing = mVTI;
  Attempt([&] { Required(Closing).DisconnectMTI(); });
  SetLink(nullptr);
}

void CKELDElement::SetLink(std::shared_ptr<instrument::CKELDInstrument> Instrument) {
  mVTI = std::move(Instrument);
}

bool CKELDElement::AskYesNo(const std::string& sText) {
  // A prompt that closes without an answer is not consent.
  iYesNoAnswer = 2;
  orvik::platform::Subscription Answered;
  Attempt([&] { mfrmYesNoPrompt = ui::FYesNoPrompt::Create(); });
  Attempt([&] {
    Answered = Required(mfrmYesNoPrompt).YesNoOption().Subscribe([this](std::int32_t lOption) {
      iYesNoAnswer = lOption == 1 ? 1 : 2;
    });
  });
  Attempt([&] { Required(mfrmYesNoPrompt).SetPrompt(sText); });
  Attempt([&] { Required(mfrmYesNoPrompt).ShowModal(); });
  Attempt([&] { Required(mfrmYesNoPrompt).Unload(); });
  mfrmYesNoPrompt.reset();
  return iYesNoAnswer == 1;
}

void CKELDElement::IKELDTest_NextTest() {
  const auto Self = shared_from_this();
  HideGuide();
  Navigate(orvik::Navigation::kNext);
}

void CKELDElement::IKELDTest_PrevTest() {
  const auto Self = shared_from_this();
  HideGuide();
  Navigate(orvik::Navigation::kPrevious);
}

void CKELDElement::IKELDTest_InitAutoRun(std::shared_ptr<instrument::CKELDInstrument> Instrument,
                                         std::shared_ptr<ui::FTestGuide> Guide,
                                         std::shared_ptr<orvik::IRunController> RunController) {
  SetLink(std::move(Instrument));
  mTestGuide = std::move(Guide);
  mRunController = RunController;
  fStandaloneRun = false;
}

void CKELDElement::IKELDTest_ResetAutoRun() {
  SetLink(nullptr);
  mTestGuide.reset();
  mRunController.reset();
}

}  // namespace keld::model
