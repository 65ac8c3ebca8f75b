#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/ITestContainer.h"
#include "model/CKELDElement.h"

namespace keld {

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
  /// False when no later child is to run.
  bool RunChild(const std::shared_ptr<orvik::ITestElement>& iteChild);
  /// The running child, and those that run inside it, let go of the link, so that nobody is told of a lost
  /// tester.
  void ReleaseRunningChild();
  void ResetResult();
  void Summarise();
  /// Failed by the sequence's own limits, else what the children's results give. Not tested when the limits
  /// cannot be read and no child failed.
  std::int32_t SummaryStatus(CKELDMeasurement& Summary, bool fHasLimits) const;

  /// The base element as the container that it is.
  std::shared_ptr<orvik::ITestContainer> mChildren;
  /// The child being run, or empty.
  std::shared_ptr<orvik::ITestElement> mCurrentChild;
  /// The operator has ended the present run.
  bool fAborted = false;
};

}  // namespace keld
