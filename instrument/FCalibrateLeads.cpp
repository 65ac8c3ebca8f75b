#include "instrument/FCalibrateLeads.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "instrument/CKELDData.h"
#include "instrument/CommsState.h"
#include "instrument/Number.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"

namespace keld::instrument {

namespace platform = orvik::platform;
namespace Texts = MKELDLanguageConstants;
using orvik::Required;

namespace {

constexpr std::int16_t kLeadResistanceTest = 410;
constexpr char kOverloadMark[] = "O";
constexpr char kOhm[] = "Ohm";
/// "IREM", "STST", "GRES", then "STST" and "EREM" to end the session.
constexpr std::int32_t kProgressSteps = 5;

}  // namespace

std::shared_ptr<FCalibrateLeads> FCalibrateLeads::Create() {
  const std::shared_ptr<FCalibrateLeads> Created(new FCalibrateLeads);
  Created->Subscribe();
  return Created;
}

FCalibrateLeads::FCalibrateLeads()
    : mForm(MKELDGlobalVars::Application()->CreateForm("FCalibrateLeads")),
      mControls(CalibrationControls::AddTo(mForm)) {
  mForm->SetKeyPreview(true);
  Attempt([&] { Required(mControls.xpbProgress).SetRange(0, kProgressSteps); });
}

FCalibrateLeads::~FCalibrateLeads() {
  Attempt([&] { mForm->Unload(); });
}

std::string FCalibrateLeads::IObject_ClassID() const { return ClassIdentifiers::kCalibrateLeads; }

void FCalibrateLeads::Subscribe() {
  // Handlers keep the dialog alive, because the window may be released meanwhile.
  const auto Calling = [this](void (FCalibrateLeads::*pHandler)()) {
    return [this, pHandler, Weak = weak_from_this()] {
      if (const auto Self = Weak.lock()) (this->*pHandler)();
    };
  };
  const auto Cancel = Calling(&FCalibrateLeads::cmdCancel_Click);
  mCalibrateSubscription =
      mControls.cmdCalibrate->Clicked().Subscribe(Calling(&FCalibrateLeads::cmdCalibrate_Click));
  mSaveSubscription = mControls.cmdSave->Clicked().Subscribe(Calling(&FCalibrateLeads::cmdSave_Click));
  mCancelSubscription = mControls.cmdCancel->Clicked().Subscribe(Cancel);
  mSerialSubscription = mControls.txtSerial->Changed().Subscribe(Calling(&FCalibrateLeads::txtSerial_Change));
  mCloseSubscription = mForm->CloseRequested().Subscribe([Cancel](bool& fKeepOpen) {
    fKeepOpen = true;
    Cancel();
  });
  mKeySubscription = mForm->KeyDown().Subscribe([Cancel](int iKey, int) {
    if (iKey == platform::kKeyEscape) Cancel();
  });
}

void FCalibrateLeads::ShowModal(const std::shared_ptr<platform::IForm>& Owner) {
  const auto Self = shared_from_this();
  mForm->ShowModal(Owner);
}

void FCalibrateLeads::Unload() {
  const auto Self = shared_from_this();
  EndSession();
  mForm->Unload();
}

void FCalibrateLeads::cmdCalibrate_Click() {
  // The button is enabled while the session ends, so a click may come before the port is closed.
  fCalibrateAgain = true;
  if (fCalibrating) return;
  fCalibrating = true;
  while (fCalibrateAgain && !fCancelled && mForm->Visible()) {
    fCalibrateAgain = false;
    Calibrate();
  }
  fCalibrating = false;
}

void FCalibrateLeads::Calibrate() {
  ShowStatus(Texts::kCalibrating);
  ShowGuidance(Texts::kCalibrationGuidance);
  ShowProgress(0);
  mControls.cmdCalibrate->SetEnabled(false);
  mControls.cmdSave->SetEnabled(false);
  fValueValid = false;

  std::shared_ptr<CKELDInstrument> Link;
  Attempt([&] {
    Link = CKELDInstrument::Create();
    mVTI = Link;
    mResultSubscription =
        Link->ResultReceived().Subscribe([this](std::int32_t& ecsCommsState, std::int16_t iTestNo) {
          mVTI_ResultReceived(ecsCommsState, iTestNo);
        });
    mDataSubscription =
        Link->GotMtiData().Subscribe([this](const MtiDataArray& avData) { mVTI_GotMtiData(avData); });
    Link->ConnectMTI();
    if (Link->PortNumber() >= 1) Link->RunMtiTest(kLeadResistanceTest, 0);
  });

  ShowStatus(Texts::kCalibrationComplete);
  mControls.cmdCalibrate->SetEnabled(true);
  txtSerial_Change();
  EndSession();
  ShowProgress(kProgressSteps);
  mVTI.reset();
}

void FCalibrateLeads::EndSession() {
  if (const auto Link = mVTI) Link->DisconnectMTI();
}

void FCalibrateLeads::cmdSave_Click() {
  const auto Data = CKELDData::Shared();
  if (mavData) Data->TakeIdentity(*mavData);
  const std::string sSerialNumber = mControls.txtSerial->Text();
  if (sSerialNumber != Data->SerialNumber()) Data->SetSerialNumber(sSerialNumber);
  Attempt([&] { Data->SetCalibValue(IntegerIn(mControls.lblValue->Caption(), INT32_MIN, INT32_MAX)); });
  mForm->Hide();
}

void FCalibrateLeads::cmdCancel_Click() {
  fCancelled = true;
  mForm->Hide();
  if (fCalibrating) EndSession();
}

void FCalibrateLeads::txtSerial_Change() {
  mControls.cmdSave->SetEnabled(!mControls.txtSerial->Text().empty() && fValueValid);
}

void FCalibrateLeads::mVTI_ResultReceived(std::int32_t ecsCommsState, std::int16_t iTestNo) {
  ShowProgress(lProgress + 1);
  const auto Link = mVTI;
  if (!Link || ecsCommsState != CommsState::kResultReceived || iTestNo != kLeadResistanceTest) return;

  if (orvik::TextOf(Link->MtiData(3)) == kOverloadMark) {
    mControls.lblValue->SetCaption(MKELDGlobalVars::Shown(Texts::kOverload));
    fValueValid = false;
    return;
  }
  double rValue = orvik::NumericValue(Link->MtiData(2));
  if (orvik::TextOf(Link->MtiData(4)) == kOhm) rValue *= 1000;
  fValueValid = true;
  mControls.lblValue->SetCaption(orvik::NumberText(rValue));
  ShowGuidance(Texts::kCalibrationSaveGuidance);
}

void FCalibrateLeads::mVTI_GotMtiData(const MtiDataArray& avData) {
  mavData = avData;
  if (orvik::TextOf(avData[1]).empty()) return;
  mControls.txtSerial->SetText(orvik::TextOf(avData[1]));
  mControls.txtMTIType->SetText(orvik::TextOf(avData[0]));
}

void FCalibrateLeads::ShowStatus(const char* pcText) {
  mControls.lblStatus->SetCaption(MKELDGlobalVars::Shown(pcText));
}

void FCalibrateLeads::ShowGuidance(const char* pcText) {
  mControls.lblHlpTxt->SetCaption(MKELDGlobalVars::Shown(pcText));
}

void FCalibrateLeads::ShowProgress(std::int32_t lSteps) {
  lProgress = lSteps;
  Attempt([&] { Required(mControls.xpbProgress).SetValue(lSteps); });
}

}  // namespace keld::instrument
