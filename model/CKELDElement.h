#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/ITestElement.h"
#include "model/IKELDTest.h"
#include "platform/Event.h"

namespace keld::configuration {
class CKELDTestConfiguration;
}
namespace keld::instrument {
class CKELDMeasurement;
}
namespace keld::results {
class CKELDResultData;
}
namespace keld::ui {
class FTestGuide;
class FYesNoPrompt;
}  // namespace keld::ui

namespace orvik {
class IRunController;
}  // namespace orvik

namespace keld::model {

/// The common part of single tests and sequences: the host's base element that each wraps, and the frame of
/// a run.
///
/// Every operation ignores errors step by step: a failing call is skipped and the next step runs.
class CKELDElement : public orvik::ITestElement, public IKELDTest {
 public:
  /// The host's element behind this one. Setting it to empty is ignored.
  std::shared_ptr<orvik::IBaseElement> BaseElement() const { return mBaseElement; }
  virtual void SetBaseElement(std::shared_ptr<orvik::IBaseElement> Base);

 protected:
  CKELDElement() = default;
  ~CKELDElement() override;

  /// Creates the base element from the host's class and installs configuration and limits in it.
  void InstallBaseElement(const std::string& sHostClass);
  /// Make this element the owner of its configuration, limits and result.
  void OwnConfiguration();
  void OwnLimits();
  void OwnResult();
  /// Fills a fresh element of the same class as a clone of this one; false when the host could not copy the
  /// base element.
  bool CloneInto(CKELDElement& Copy) const;

  std::shared_ptr<orvik::ITestElement> SelfElement();
  std::shared_ptr<configuration::CKELDTestConfiguration> TestConfiguration() const;

  /// The result as the plug-in's own class, or empty.
  std::shared_ptr<results::CKELDResultData> ResultData() const;
  /// The result; creates one if there is none.
  std::shared_ptr<results::CKELDResultData> EnsureResult();
  /// Records status 3 without a measurement.
  void RecordNotApplicable();
  /// Records the status of an aborted element, and removes the service record of an earlier run.
  void RecordAbort(std::int32_t lStatus);
  /// True if the run controller lets the element start; false if it cannot be asked.
  bool MayStart();

  void NotifyFinished();
  void HideGuide();
  void Navigate(std::int32_t lRequest);
  void ShowResultInGuide();
  /// Ends the test and remote mode on the link, then releases it.
  void CloseLink();
  /// Asks with the yes/no prompt; true only if the operator answered yes.
  bool AskYesNo(const std::string& sText);

  /// The instrument link of the current run, or empty.
  const std::shared_ptr<instrument::CKELDInstrument>& Link() const { return mVTI; }
  virtual void SetLink(std::shared_ptr<instrument::CKELDInstrument> Instrument);
  std::shared_ptr<ui::FTestGuide> TestGuide() const { return mTestGuide; }
  std::shared_ptr<orvik::IRunController> RunController() const { return mRunController.lock(); }
  /// Whether the measurement fails the element's limits under the run's standards; false without limits.
  /// Raises an error if limits or standards cannot be read, so that an unjudged reading does not pass.
  bool FailsOwnLimits(instrument::CKELDMeasurement& Measurement) const;
  bool StandaloneRun() const { return fStandaloneRun; }

  bool fStopRequested = false;

 private:
  void ITestElement_Initialize(const std::string& sPlugInID, std::int32_t lElementID,
                               std::int32_t lTestID) override;
  void ITestElement_Terminate() override {}
  void ITestElement_Load(std::shared_ptr<orvik::IXmlNode> Node,
                         std::shared_ptr<orvik::IObject> Context) override;
  std::shared_ptr<orvik::IXmlNode> ITestElement_Save(std::shared_ptr<orvik::IXmlNode> Parent) const override;
  orvik::Variant ITestElement_Info() const override;
  bool ITestElement_QuerySetParent(std::shared_ptr<orvik::ITestElement> iteParent) const override;
  void ITestElement_UpdateReferences() override;
  void ITestElement_Perform(std::shared_ptr<orvik::IRunController> RunController) override;
  std::shared_ptr<orvik::IConfigData> ITestElement_Configuration() const override;
  std::shared_ptr<orvik::ILimitData> ITestElement_Limits() const override;
  std::shared_ptr<orvik::IResultData> ITestElement_Result() const override;
  void ITestElement_PrintReport(std::shared_ptr<orvik::IReport> Report,
                                std::shared_ptr<orvik::IObject> Context) override;
  std::int32_t ITestElement_ID() const override;
  void ITestElement_SetID(std::int32_t lID) override;
  std::shared_ptr<orvik::ITestElement> ITestElement_Parent() const override;
  void ITestElement_SetParent(std::shared_ptr<orvik::ITestElement> iteParent) override;
  std::int32_t ITestElement_TestID() const override;
  std::string ITestElement_PlugInID() const override;
  std::shared_ptr<orvik::IInformationRecord> ITestElement_Information() const override;
  orvik::Variant ITestElement_Filter() const override;
  orvik::Variant ITestElement_GetMeasurementList() const override;

  std::string IKELDTest_ExpectedUnits() const override { return sExpectedUnits; }
  void IKELDTest_SetExpectedUnits(const std::string& sUnits) override { sExpectedUnits = sUnits; }
  bool IKELDTest_Stopped() const override { return !mVTI; }
  void IKELDTest_NextTest() override;
  void IKELDTest_PrevTest() override;
  void IKELDTest_InitAutoRun(std::shared_ptr<instrument::CKELDInstrument> Instrument,
                             std::shared_ptr<ui::FTestGuide> Guide,
                             std::shared_ptr<orvik::IRunController> RunController) override;
  void IKELDTest_ResetAutoRun() override;

  /// Whether reports may show the element, in addition to the host's own setting.
  virtual bool Printable() const { return true; }
  void GuideOperator(const std::shared_ptr<orvik::IRunController>& RunController);

  std::shared_ptr<orvik::IBaseElement> mBaseElement;
  std::string sExpectedUnits;
  std::int16_t iYesNoAnswer = 2;
  bool fStandaloneRun = false;
  std::shared_ptr<ui::FTestGuide> mTestGuide;
  // Weak: the caller of Perform holds the controller, which holds the document and so this element.
  std::weak_ptr<orvik::IRunController> mRunController;
  std::shared_ptr<instrument::CKELDInstrument> mVTI;
  std::shared_ptr<ui::FYesNoPrompt> mfrmYesNoPrompt;
};

}  // namespace keld::model
