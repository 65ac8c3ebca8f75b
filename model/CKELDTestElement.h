#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "instrument/CKELDInstrument.h"
#include "model/CKELDElement.h"

namespace keld::ui {
class FPretestPrompt;
}

namespace keld::model {

/// One test of the catalogue: one measurement on the tester.
class CKELDTestElement final : public CKELDElement {
 public:
  /// An element with a base element of the host, its own configuration and its own limits.
  static std::shared_ptr<CKELDTestElement> Create();

  /// The failure message now on the screen, tagged with the key of its picture; empty if there is none.
  std::shared_ptr<ui::FPretestPrompt> FailureMessage() const { return mfrmPretestPrompt; }

 private:
  std::string IObject_ClassID() const override;

  void ITestElement_Initialize(const std::string& sPlugInID, std::int32_t lElementID,
                               std::int32_t lTestID) override;
  std::shared_ptr<orvik::ITestElement> ITestElement_Clone() const override;
  orvik::Variant ITestElement_Info() const override;

  void IKELDTest_AbortTest() override;
  void IKELDTest_NATest() override;
  void IKELDTest_RunTest() override;
  void IKELDTest_SkipTest() override;
  void IKELDTest_StopTest() override;

  void SetLink(std::shared_ptr<instrument::CKELDInstrument> Instrument) override;
  void MeasureOnLink();
  void GotMtiData(const instrument::MtiDataArray& avData);
  void ResultReceived(std::int32_t lStatus, std::int16_t iTestNo);
  void StoreInstrumentUpdate();
  void ReportNoInstrument();
  void ReportTestNotSupported();
  void ReportFailure(const std::string& sText, const std::string& sKey);
  void RecordMeasurement(std::int16_t iTestNo);

  std::shared_ptr<ui::FPretestPrompt> mfrmPretestPrompt;
  orvik::platform::Subscription mGotMtiData;
  orvik::platform::Subscription mResultReceived;
};

}  // namespace keld::model
