#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"

namespace orvik {

class ITestElement;
class ITestEnumerator;

/// Ordered children of an element.
///
/// Implemented by: the host and the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class ITestContainer : public virtual IObject {
 public:
  /// Adds a child at the end, or before or after the child with the identifier given (32-bit integer; empty
  /// when missing). `HostError` for an element that contains the container.
  void Add(std::shared_ptr<ITestElement> iteElement, const Variant& vBefore, const Variant& vAfter) {
    ITestContainer_Add(std::move(iteElement), vBefore, vAfter);
  }
  /// Number of children.
  std::int32_t Count() const { return ITestContainer_Count(); }
  /// The child at the index, counted from 1; `HostError` 9 outside.
  std::shared_ptr<ITestElement> item(std::int32_t lIndex) const { return ITestContainer_item(lIndex); }
  /// The first element with that identifier, at any depth, in document order; or empty.
  std::shared_ptr<ITestElement> FindElement(std::int32_t lIdentifier) const {
    return ITestContainer_FindElement(lIdentifier);
  }
  /// Walks the children in order; survives adding and removing meanwhile.
  std::shared_ptr<ITestEnumerator> NewEnum() const { return ITestContainer_NewEnum(); }
  /// Removes the child; an element that is not a child changes nothing.
  void Remove(std::shared_ptr<ITestElement> iteElement) { ITestContainer_Remove(std::move(iteElement)); }

 private:
  virtual void ITestContainer_Add(std::shared_ptr<ITestElement> iteElement, const Variant& vBefore,
                                  const Variant& vAfter) = 0;
  virtual std::int32_t ITestContainer_Count() const = 0;
  virtual std::shared_ptr<ITestElement> ITestContainer_item(std::int32_t lIndex) const = 0;
  virtual std::shared_ptr<ITestElement> ITestContainer_FindElement(std::int32_t lIdentifier) const = 0;
  virtual std::shared_ptr<ITestEnumerator> ITestContainer_NewEnum() const = 0;
  virtual void ITestContainer_Remove(std::shared_ptr<ITestElement> iteElement) = 0;
};

}  // namespace orvik
