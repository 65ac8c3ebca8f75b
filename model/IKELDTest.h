#pragma once

#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace keld::instrument {
class CKELDInstrument;
}
namespace keld::ui {
class FTestGuide;
}

namespace orvik {
class IRunController;
}

namespace keld::model {

/// How the test guide and a sequence drive the run of one element.
///
/// Implemented by single test elements and by sequences. None of the operations raises an error.
class IKELDTest : public virtual orvik::IObject {
 public:
  /// The unit text in which the element's measurement is recorded.
  std::string ExpectedUnits() const { return IKELDTest_ExpectedUnits(); }
  void SetExpectedUnits(const std::string& sUnits) { IKELDTest_SetExpectedUnits(sUnits); }
  /// True when the element has no open instrument link.
  bool Stopped() const { return IKELDTest_Stopped(); }
  /// Asks the operator, then abandons the run.
  void AbortTest() { IKELDTest_AbortTest(); }
  /// Records the element as not applicable and moves on.
  void NATest() { IKELDTest_NATest(); }
  /// Leaves the element and moves to the next one.
  void NextTest() { IKELDTest_NextTest(); }
  /// Leaves the element and moves to the previous one.
  void PrevTest() { IKELDTest_PrevTest(); }
  /// Performs the measurement on the instrument; returns when it is over.
  void RunTest() { IKELDTest_RunTest(); }
  /// Leaves the element without a result and moves on.
  void SkipTest() { IKELDTest_SkipTest(); }
  /// Requests that the running measurement is discarded at the next instrument event.
  void StopTest() { IKELDTest_StopTest(); }
  /// Gives the element the objects of a run that another object drives; any of them may be empty.
  void InitAutoRun(std::shared_ptr<instrument::CKELDInstrument> Instrument,
                   std::shared_ptr<ui::FTestGuide> Guide,
                   std::shared_ptr<orvik::IRunController> RunController) {
    IKELDTest_InitAutoRun(std::move(Instrument), std::move(Guide), std::move(RunController));
  }
  /// Releases those three objects.
  void ResetAutoRun() { IKELDTest_ResetAutoRun(); }

 private:
  virtual std::string IKELDTest_ExpectedUnits() const = 0;
  virtual void IKELDTest_SetExpectedUnits(const std::string& sUnits) = 0;
  virtual bool IKELDTest_Stopped() const = 0;
  virtual void IKELDTest_AbortTest() = 0;
  virtual void IKELDTest_NATest() = 0;
  virtual void IKELDTest_NextTest() = 0;
  virtual void IKELDTest_PrevTest() = 0;
  virtual void IKELDTest_RunTest() = 0;
  virtual void IKELDTest_SkipTest() = 0;
  virtual void IKELDTest_StopTest() = 0;
  virtual void IKELDTest_InitAutoRun(std::shared_ptr<instrument::CKELDInstrument> Instrument,
                                     std::shared_ptr<ui::FTestGuide> Guide,
                                     std::shared_ptr<orvik::IRunController> RunController) = 0;
  virtual void IKELDTest_ResetAutoRun() = 0;
};

}  // namespace keld::model
