#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/ITestContainer.h"
#include "model/CKELDElement.h"

namespace keld::model {

/// A test element that holds others, single tests or further sequences, and runs them in order on one
/// instrument link.
class CKELDSequence final : public CKELDElement, public orvik::ITestContainer {
 public:
  /// A sequence with a container element of the host, its own configuration and its own limits.
  static std::shared_ptr<CKELDSequence> Create();

  void SetBaseElement(std::shared_ptr<orvik::IBaseElement> Base) override;

 private:
  std::string IObject_ClassID() const override;

  void ITestContainer_Add(std::shared_ptr<orvik::ITestElement> iteElement, const orvik::Variant& vBefore,
                          const orvik::Variant& vAfter) override;
  std::int32_t ITestContainer_Count() const override;
  std::shared_ptr<orvik::ITestElement> ITestContainer_item(std::int32_t lIndex) const override;
  std::shared_ptr<orvik::ITestElement> ITestContainer_FindElement(std::int32_t lIdentifier) const override;
  std::shared_ptr<orvik::ITestEnumerator> ITestContainer_NewEnum() const override;
  void ITestContainer_Remove(std::shared_ptr<orvik::ITestElement> iteElement) override;

  std::shared_ptr<orvik::ITestElement> ITestElement_Clone() const override;

  void IKELDTest_AbortTest() override;
  void IKELDTest_NATest() override;
  void IKELDTest_RunTest() override;
  void IKELDTest_SkipTest() override;
  void IKELDTest_StopTest() override;

  /// A sequence without a result has nothing to print.
  bool Printable() const override;

  void RunChildren();
  /// Returns false if no later child may run.
  bool RunChild(const std::shared_ptr<orvik::ITestElement>& iteChild);
  /// Takes the link from the running child and from those running inside it, so that none of them reports a
  /// lost tester.
  void ReleaseRunningChild();
  void ResetResult();
  void Summarise();
  /// Failed if the sequence's own limits are exceeded, else the status from the children's results. Not
  /// tested if the limits cannot be read and no child failed.
  std::int32_t SummaryStatus(instrument::CKELDMeasurement& Summary, bool fHasLimits) const;

  /// The base element, viewed as a container.
  std::shared_ptr<orvik::ITestContainer> mChildren;
  /// The child being run, or empty.
  std::shared_ptr<orvik::ITestElement> mCurrentChild;
  /// The operator has aborted the present run.
  bool fAborted = false;
};

}  // namespace keld::model
