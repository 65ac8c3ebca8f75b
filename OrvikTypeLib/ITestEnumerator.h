#pragma once

#include <memory>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class ITestElement;

/// Walks the children of a container.
///
/// Implemented by: the host and the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class ITestEnumerator : public virtual IObject {
 public:
  /// The next child, or empty at the end. A child removed meanwhile is passed over.
  std::shared_ptr<ITestElement> Next() { return ITestEnumerator_Next(); }

 private:
  virtual std::shared_ptr<ITestElement> ITestEnumerator_Next() = 0;
};

}  // namespace orvik
