#include <string>
#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/IRunController.h"
#include "instrument/CKELDInstrument.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDSequence.h"
#include "model/Children.h"
#include "model/SequenceSummary.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "results/CKELDResultData.h"
#include "ui/FTestGuide.h"

// How a sequence runs its children and sums them up.
namespace keld::model {

using orvik::As;
using orvik::Required;

void CKELDSequence::IKELDTest_RunTest() {
  const auto Self = shared_from_this();
  ResetResult();
  fStopRequested = false;
  fAborted = false;
  if (!MayStart()) {
    Attempt([&] { Required(BaseElement()).SetResult(nullptr); });
    return;
  }
  if (StandaloneRun()) Attempt([&] { SetLink(instrument::CKELDInstrument::Create()); });
  RunChildren();
  if (fStopRequested) {
    ResetResult();
  } else {
    Summarise();
    Attempt([&] {
      if (const auto Summed = ResultData()) Summed->BuildServiceRecord(SelfElement());
    });
  }
  ShowResultInGuide();
  NotifyFinished();
  if (StandaloneRun()) CloseLink();
  // An abort while the session is closing comes after the summary; it must discard that too.
  if (fAborted) ResetResult();
}

void CKELDSequence::ResetResult() {
  Attempt([&] {
    if (const auto Previous = ResultData()) Previous->Reset(SelfElement(), orvik::ResultStatus::kNotTested);
  });
}

void CKELDSequence::RunChildren() {
  Attempt([&] {
    const auto Walk = Required(mChildren).NewEnum();
    while (const auto iteChild = Required(Walk).Next()) {
      if (!RunChild(iteChild)) break;
    }
  });
  mCurrentChild.reset();
}

bool CKELDSequence::RunChild(const std::shared_ptr<orvik::ITestElement>& iteChild) {
  const auto Test = As<IKELDTest>(iteChild);
  if (!Test) return true;
  mCurrentChild = iteChild;
  Test->InitAutoRun(Link(), TestGuide(), RunController());
  Test->RunTest();
  const bool fStopped = Test->Stopped();
  Test->ResetAutoRun();
  return !fStopped && !fStopRequested;
}

void CKELDSequence::Summarise() {
  const auto Summed = mChildren;
  const std::int32_t lChildren = AttemptValue(std::int32_t{0}, [&] { return Required(Summed).Count(); });
  if (lChildren == 0) return;
  Attempt([&] { EnsureResult(); });
  const auto Recorded = ResultData();
  const std::int32_t lMode =
      AttemptValue(std::int32_t{0}, [&] { return Required(TestConfiguration()).ValueFilter(); });
  const orvik::Variant vValue = SummaryValue(*Summed, lMode);
  const auto Measurement = instrument::CKELDMeasurement::Create();
  Attempt([&] { Required(Recorded).SetMeasurement(Measurement); });
  Attempt([&] { Measurement->AddValue(vValue, "", "", MKELDConstants::kLimitKey); });
  const bool fHasLimits = lMode != 1 && vValue != orvik::Variant(std::string());
  Attempt([&] { Measurement->SetStatus(SummaryStatus(*Measurement, fHasLimits)); });
  Attempt([&] { Required(Recorded).SetStatus(Measurement->Status()); });
  Attempt([&] {
    if (Required(Recorded).Status() == orvik::ResultStatus::kNotTested)
      Required(BaseElement()).SetResult(nullptr);
  });
}

std::int32_t CKELDSequence::SummaryStatus(instrument::CKELDMeasurement& Summary, bool fHasLimits) const {
  bool fFailed = false;
  const bool fJudged = !fHasLimits || Attempt([&] { fFailed = FailsOwnLimits(Summary); });
  if (fFailed) return orvik::ResultStatus::kFailed;
  const std::int32_t lChildren = ChildrenStatus(Required(mChildren));
  // A summary that could not be judged never passes, but a failed child still fails it.
  if (fJudged || lChildren == orvik::ResultStatus::kFailed) return lChildren;
  return orvik::ResultStatus::kNotTested;
}

void CKELDSequence::IKELDTest_StopTest() {
  const auto Self = shared_from_this();
  if (const auto Test = As<IKELDTest>(mCurrentChild)) Test->StopTest();
  fStopRequested = true;
}

void CKELDSequence::IKELDTest_AbortTest() {
  const auto Self = shared_from_this();
  if (!AskYesNo(MKELDLanguageConstants::kEndTest)) return;
  fAborted = true;
  // End the loop over the children as a stop does, without a summary.
  StopTest();
  ReleaseRunningChild();
  CloseLink();
  // Not tested, unlike a single element, which is recorded as aborted.
  RecordAbort(orvik::ResultStatus::kNotTested);
  HideGuide();
  Navigate(orvik::Navigation::kAbort);
}

void CKELDSequence::ReleaseRunningChild() {
  if (const auto Nested = As<CKELDSequence>(mCurrentChild)) Nested->ReleaseRunningChild();
  if (const auto Test = As<IKELDTest>(mCurrentChild)) Test->ResetAutoRun();
}

void CKELDSequence::IKELDTest_NATest() {
  const auto Self = shared_from_this();
  RecordNotApplicable();
  ForEachChild(*this, [](const auto& iteChild) {
    if (const auto Test = As<IKELDTest>(iteChild)) Test->NATest();
  });
  NotifyFinished();
  HideGuide();
  Navigate(orvik::Navigation::kNotApplicable);
}

void CKELDSequence::IKELDTest_SkipTest() {
  const auto Self = shared_from_this();
  Attempt([&] { Required(BaseElement()).SetResult(nullptr); });
  ForEachChild(*this, [](const auto& iteChild) {
    if (const auto Test = As<IKELDTest>(iteChild)) Test->SkipTest();
  });
  NotifyFinished();
  HideGuide();
  Navigate(orvik::Navigation::kSkip);
}

}  // namespace keld::model
