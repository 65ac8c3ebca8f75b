#include "model/CKELDTestElement.h"

#include <limits>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "model/TestMode.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "results/CKELDResultData.h"

namespace keld::model {

using orvik::Required;

std::shared_ptr<CKELDTestElement> CKELDTestElement::Create() {
  auto Created = std::make_shared<CKELDTestElement>();
  Created->InstallBaseElement(orvik::HostClasses::kTestElement);
  return Created;
}

std::string CKELDTestElement::IObject_ClassID() const { return ClassIdentifiers::kTestElement; }

void CKELDTestElement::ITestElement_Initialize(const std::string& sPlugInID, std::int32_t lElementID,
                                               std::int32_t lTestID) {
  Attempt([&] { Required(BaseElement()).Initialize(sPlugInID, lElementID, lTestID); });
  OwnLimits();
  const std::int32_t lID = TestID();
  const bool fOneLead = lID >= 1110 && lID <= 1165;
  const bool fAllLeads = lID >= 910 && lID <= 965;
  if (!fOneLead && !fAllLeads) return;
  Attempt([&] {
    auto& Configured = Required(TestConfiguration());
    // Adds 4 instead of setting a bit, on purpose: a word that already has the 4 carries into the 8. A word
    // that would overflow stays unchanged.
    constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max() - 4;
    if (fOneLead && Configured.Options() <= kHighest) Configured.SetOptions(Configured.Options() + 4);
    if (fAllLeads) Configured.SetOptions(Configured.Options() | orvik::OptionBits::kAllLeads);
  });
}

std::shared_ptr<orvik::ITestElement> CKELDTestElement::ITestElement_Clone() const {
  // Not `Create`: the clone brings its own base element, configuration and limits.
  auto Copy = std::make_shared<CKELDTestElement>();
  if (!CloneInto(*Copy)) return nullptr;
  return Copy;
}

orvik::Variant CKELDTestElement::ITestElement_Info() const {
  std::vector<std::string> asInfo{"::", ""};
  Attempt([&] {
    const auto Texts = Information();
    // Second text first, as in message 20805.
    asInfo[1] = Required(Texts).SecondText();
    const std::string sFirst = Texts->FirstText();
    if (!sFirst.empty()) asInfo[1] += " " + sFirst;
  });
  return asInfo;
}

// --- IKELDTest ---

void CKELDTestElement::IKELDTest_RunTest() {
  const auto Self = shared_from_this();
  Attempt([&] { Required(ResultData()).Reset(SelfElement(), orvik::ResultStatus::kNotTested); });
  fStopRequested = false;
  if (!MayStart()) {
    Attempt([&] { Required(BaseElement()).SetResult(nullptr); });
    return;
  }
  if (StandaloneRun()) Attempt([&] { SetLink(instrument::CKELDInstrument::Create()); });
  MeasureOnLink();
  NotifyFinished();
  if (StandaloneRun()) CloseLink();
}

void CKELDTestElement::MeasureOnLink() {
  const std::int16_t iTestNo = orvik::Narrow16(TestID());
  const std::int16_t iTestMode = AttemptValue(
      std::int16_t{999}, [&] { return ComputeTestMode(Required(TestConfiguration()).Options(), TestID()); });
  const auto Instrument = Link();
  Attempt([&] {
    if (Required(Instrument).PortNumber() == 0) Instrument->ConnectMTI();
  });
  const bool fConnected = AttemptValue(false, [&] { return Required(Instrument).PortNumber() >= 1; });
  if (fConnected) {
    Attempt([&] { Instrument->RunMtiTest(iTestNo, iTestMode); });
  } else {
    SetLink(nullptr);
  }
}

void CKELDTestElement::IKELDTest_StopTest() { fStopRequested = true; }

void CKELDTestElement::IKELDTest_SkipTest() {
  const auto Self = shared_from_this();
  Attempt([&] { Required(BaseElement()).SetResult(nullptr); });
  NotifyFinished();
  HideGuide();
  Navigate(orvik::Navigation::kSkip);
}

void CKELDTestElement::IKELDTest_NATest() {
  const auto Self = shared_from_this();
  RecordNotApplicable();
  NotifyFinished();
  HideGuide();
  Navigate(orvik::Navigation::kNotApplicable);
}

void CKELDTestElement::IKELDTest_AbortTest() {
  const auto Self = shared_from_this();
  if (!AskYesNo(MKELDLanguageConstants::kEndTest)) return;
  CloseLink();
  RecordAbort(orvik::ResultStatus::kAborted);
  HideGuide();
  Navigate(orvik::Navigation::kAbort);
}

}  // namespace keld::model
