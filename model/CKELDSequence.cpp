#include "model/CKELDSequence.h"

#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "model/Children.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/base/MKELDGlobalVars.h"

namespace keld::model {

using orvik::As;
using orvik::Required;

std::shared_ptr<CKELDSequence> CKELDSequence::Create() {
  auto Created = std::make_shared<CKELDSequence>();
  Created->InstallBaseElement(orvik::HostClasses::kTestContainer);
  return Created;
}

std::string CKELDSequence::IObject_ClassID() const { return ClassIdentifiers::kSequence; }

void CKELDSequence::SetBaseElement(std::shared_ptr<orvik::IBaseElement> Base) {
  if (Base) mChildren = As<orvik::ITestContainer>(Base);
  CKELDElement::SetBaseElement(std::move(Base));
}

// --- ITestContainer ---

void CKELDSequence::ITestContainer_Add(std::shared_ptr<orvik::ITestElement> iteElement,
                                       const orvik::Variant& vBefore, const orvik::Variant& vAfter) {
  try {
    Required(mChildren).Add(iteElement, vBefore, vAfter);
    Required(iteElement).SetParent(SelfElement());
  } catch (const orvik::HostError& Error) {
    // The host gets no error, so log the element that could not be added.
    Attempt([&] {
      MKELDGlobalVars::ErrorLog()->LogEntry(MKELDConstants::kPlugInID, Error.Number(), "CKELDSequence",
                                            MKELDConstants::kLevelConfiguration, {}, {}, {}, {}, {});
    });
  }
}

std::int32_t CKELDSequence::ITestContainer_Count() const {
  return AttemptValue(std::int32_t{0}, [&] { return Required(mChildren).Count(); });
}

std::shared_ptr<orvik::ITestElement> CKELDSequence::ITestContainer_item(std::int32_t lIndex) const {
  return AttemptValue(std::shared_ptr<orvik::ITestElement>(),
                      [&] { return Required(mChildren).item(lIndex); });
}

std::shared_ptr<orvik::ITestElement> CKELDSequence::ITestContainer_FindElement(
    std::int32_t lIdentifier) const {
  return AttemptValue(std::shared_ptr<orvik::ITestElement>(),
                      [&] { return Required(mChildren).FindElement(lIdentifier); });
}

std::shared_ptr<orvik::ITestEnumerator> CKELDSequence::ITestContainer_NewEnum() const {
  return AttemptValue(std::shared_ptr<orvik::ITestEnumerator>(),
                      [&] { return Required(mChildren).NewEnum(); });
}

void CKELDSequence::ITestContainer_Remove(std::shared_ptr<orvik::ITestElement> iteElement) {
  if (!iteElement) return;
  Attempt([&] { Required(mChildren).Remove(iteElement); });
}

// --- ITestElement ---

std::shared_ptr<orvik::ITestElement> CKELDSequence::ITestElement_Clone() const {
  // Not `Create`: the clone brings its own base element, configuration and limits.
  auto Copy = std::make_shared<CKELDSequence>();
  if (!CloneInto(*Copy)) return nullptr;
  // The host copied the children into its own container; make the sequence their parent.
  ForEachChild(*Copy, [&](const auto& iteChild) { iteChild->SetParent(Copy); });
  return Copy;
}

bool CKELDSequence::Printable() const { return Result() != nullptr; }

}  // namespace keld::model
