#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "benchmarks/Measurements.h"
#include "benchmarks/Repeat.h"
#include "benchmarks/VirtualRig.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDTestElement.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "plugin/base/ClassIdentifiers.h"
#include "results/CKELDResultData.h"
#include "results/XKELDResultView.h"
#include "tests/support/ReadFile.h"

namespace benchmarks {

namespace {

constexpr int kFewRows = 100;
constexpr int kManyRows = 100'000;
/// Rows whose cost is taken together, half of them before the place and half of them after it.
constexpr int kAround = 100;
constexpr int kLists = 7;

/// An element that was measured and keeps its limit.
std::shared_ptr<keld::model::CKELDTestElement> MeasuredElement() {
  const auto element = keld::model::CKELDTestElement::Create();
  element->Initialize("KELD(IN)", 1, 410);
  element->Information()->SetDisplayName("Protective earth, with mains cord");
  element->Limits()->CreateStandard("IEC 62353", "class I")->Limit(1)->SetBounds("", "300");
  const auto measurement = keld::instrument::CKELDMeasurement::Create();
  measurement->AddValue(123.0, "mOhm", "", "");
  const auto result = keld::results::CKELDResultData::Create();
  result->SetMeasurement(measurement);
  element->BaseElement()->SetResult(result);
  return element;
}

/// The list of results in a window. The element takes one row after the other, under a new identifier each.
class ResultList {
 public:
  explicit ResultList(VirtualRig& rig)
      : form_(rig.Only().Application().CreateForm("FBenchmark")),
        view_(orvik::As<keld::results::XKELDResultView>(
            form_->AddControl(keld::ClassIdentifiers::kResultView, "xrv")->Object())) {
    orvik::Required(view_).SelectStandard("IEC 62353", "class I");
  }
  ResultList(const ResultList&) = delete;
  ResultList& operator=(const ResultList&) = delete;
  ~ResultList() { form_->Unload(); }

  void AddRowsUpTo(int count) {
    while (rows_ < count) {
      element_->SetID(++rows_);
      view_->ShowResult(element_);
    }
  }

 private:
  const std::shared_ptr<orvik::platform::IForm> form_;
  const std::shared_ptr<keld::results::XKELDResultView> view_;
  const std::shared_ptr<keld::model::CKELDTestElement> element_ = MeasuredElement();
  int rows_ = 0;
};

/// What one row costs around that place of a new list, in seconds of processor time.
double RowSeconds(VirtualRig& rig, int place) {
  ResultList results(rig);
  results.AddRowsUpTo(place - kAround / 2);
  const auto start = ThreadTime();
  results.AddRowsUpTo(place + kAround / 2);
  return std::chrono::duration<double>(ThreadTime() - start).count() / kAround;
}

}  // namespace

Figure MeasureResultView(const Context& context) {
  VirtualRig rig(support::ReadFile(context.Catalogue()));
  const auto [many, few] = LeastOfEach(
      kLists, [&] { return RowSeconds(rig, kManyRows); }, [&] { return RowSeconds(rig, kFewRows); });
  constexpr double kMicroseconds = 1e6;
  return {many / few, "x", few * kMicroseconds, "the 100th row, in us", 1.5, Bound::kAtMost};
}

}  // namespace benchmarks
