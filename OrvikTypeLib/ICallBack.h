#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// Notifies the host of edits in a set-up control.
///
/// Implemented by: the host. Optional. Since contract version 1. User-interface thread only.
class ICallBack : public virtual IObject {
 public:
  /// Something happened in the control; "Change" means that the edited data were modified.
  void Notify(const std::string& sText) { ICallBack_Notify(sText); }

 private:
  virtual void ICallBack_Notify(const std::string& sText) = 0;
};

}  // namespace orvik
