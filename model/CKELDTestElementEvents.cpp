#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IRunController.h"
#include "instrument/CKELDData.h"
#include "instrument/CKELDMeasurement.h"
#include "instrument/CommsState.h"
#include "model/CKELDTestElement.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "results/CKELDResultData.h"
#include "ui/FPretestPrompt.h"
#include "ui/FTestGuide.h"

// How a single test handles the events of its instrument link.
namespace keld::model {

using orvik::Required;

namespace {

/// A reading as it is recorded.
struct Reading {
  double rValue;
  std::string sUnit;
};

/// Protective-earth resistance arrives in ohms and is recorded times 1000 in the element's own unit, which is
/// not checked.
Reading InExpectedUnits(Reading Taken, const std::string& sExpectedUnits) {
  if (Taken.sUnit != "Ohm") return Taken;
  return {Taken.rValue * 1000, sExpectedUnits};
}

/// The resistance of the test leads is not part of the equipment's protective earth.
Reading WithoutLeads(Reading Taken, std::int16_t iTestNo) {
  if (iTestNo != 410 && iTestNo != 420) return Taken;
  Taken.rValue -= instrument::CKELDData::Shared()->CalibValue();
  if (Taken.rValue < 0) Taken.rValue = 0;
  return Taken;
}

}  // namespace

void CKELDTestElement::SetLink(std::shared_ptr<instrument::CKELDInstrument> Instrument) {
  mGotMtiData.End();
  mResultReceived.End();
  CKELDElement::SetLink(std::move(Instrument));
  if (!Link()) return;
  mGotMtiData =
      Link()->GotMtiData().Subscribe([this](const instrument::MtiDataArray& avData) { GotMtiData(avData); });
  mResultReceived = Link()->ResultReceived().Subscribe(
      [this](std::int32_t& lStatus, std::int16_t iTestNo) { ResultReceived(lStatus, iTestNo); });
}

void CKELDTestElement::GotMtiData(const instrument::MtiDataArray& avData) {
  const auto Self = shared_from_this();
  Attempt([&] {
    instrument::CKELDData::Shared()->TakeIdentity(avData);
    Required(TestGuide()).Refresh();
  });
}

void CKELDTestElement::ResultReceived(std::int32_t lStatus, std::int16_t iTestNo) {
  const auto Self = shared_from_this();
  if (fStopRequested) {
    fStopRequested = false;
    CloseLink();
    return;
  }
  switch (lStatus) {
    case instrument::CommsState::kRemoteOpen:
      return StoreInstrumentUpdate();
    case instrument::CommsState::kResultReceived:
      return RecordMeasurement(iTestNo);
    case instrument::CommsState::kNoAnswer:
      return ReportNoInstrument();
    case instrument::CommsState::kTestNotSupported:
      return ReportTestNotSupported();
    default:
      return;
  }
}

void CKELDTestElement::StoreInstrumentUpdate() {
  Attempt([&] {
    instrument::CKELDData::Shared()->SetFirmwareVersion(orvik::TextOf(Required(Link()).MtiData(2)));
  });
  Attempt([&] { Required(TestGuide()).Refresh(); });
}

void CKELDTestElement::ReportNoInstrument() {
  ReportFailure(MKELDGlobalVars::Shown(MKELDLanguageConstants::kNoInstrument), "CommsError");
}

void CKELDTestElement::ReportTestNotSupported() {
  std::vector<std::string> asTexts{"", ""};
  Attempt([&] {
    const auto Texts = Information();
    asTexts = {Required(Texts).SecondText(), Texts->FirstText()};
  });
  ReportFailure(MKELDGlobalVars::Shown(MKELDLanguageConstants::kTestNotSupported, asTexts), "CommsError");
  RecordNotApplicable();
}

void CKELDTestElement::ReportFailure(const std::string& sText, const std::string& sKey) {
  // The operator may abort while this message is shown; ending the session can then show another one.
  const auto Outer = mfrmPretestPrompt;
  std::shared_ptr<ui::FPretestPrompt> Prompt;
  Attempt([&] { Prompt = ui::FPretestPrompt::Create(); });
  mfrmPretestPrompt = Prompt;
  Attempt([&] { Required(Prompt).SetPrompt(sText, sKey); });
  Attempt([&] { Required(Prompt).ShowModal(); });
  Attempt([&] { Required(Prompt).Unload(); });
  mfrmPretestPrompt = Outer;
}

void CKELDTestElement::RecordMeasurement(std::int16_t iTestNo) {
  Attempt([&] { EnsureResult(); });
  const auto Recorded = ResultData();
  const auto Measurement = instrument::CKELDMeasurement::Create();
  Attempt([&] { Required(Recorded).SetMeasurement(Measurement); });
  Attempt([&] {
    auto& Instrument = Required(Link());
    Reading Taken{orvik::NumericValue(Instrument.MtiData(2)), orvik::TextOf(Instrument.MtiData(4))};
    Taken = WithoutLeads(InExpectedUnits(Taken, ExpectedUnits()), iTestNo);
    // Field 3 is both the flags, which the result view checks for an overload, and the description.
    const std::string sDescription = orvik::TextOf(Instrument.MtiData(3));
    Measurement->AddValue(Taken.rValue, Taken.sUnit, sDescription, MKELDConstants::kLimitKey);
    Measurement->SetDescription(sDescription);
    // A reading that could not be judged keeps status 0: it never counts as passed.
    const bool fFailed = FailsOwnLimits(*Measurement);
    Measurement->SetStatus(fFailed ? orvik::MeasurementStatus::kFailed : orvik::MeasurementStatus::kPassed);
  });
  Attempt([&] { Required(Recorded).SetStatus(Measurement->Status()); });
  Attempt([&] { Required(Recorded).BuildServiceRecord(SelfElement()); });
  ShowResultInGuide();
  Attempt([&] {
    const std::int32_t lRecord =
        instrument::CKELDData::Shared()->UpdateInstrumentRecord(Required(RunController()).Instruments());
    Required(Recorded).SetMTIIdentifier(lRecord);
  });
}

}  // namespace keld::model
