#pragma once

#include <memory>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// Settings of an element that are the host's own.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IAuxiliaryState : public virtual IObject {
 public:
  /// Whether reports show the element; true when it is created.
  bool PrintElement() const { return IAuxiliaryState_PrintElement(); }
  /// Sets whether reports show the element.
  void SetPrintElement(bool fPrint) { IAuxiliaryState_SetPrintElement(fPrint); }

 private:
  virtual bool IAuxiliaryState_PrintElement() const = 0;
  virtual void IAuxiliaryState_SetPrintElement(bool fPrint) = 0;
};

}  // namespace orvik
