#pragma once

#include <cstdint>
#include <memory>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// Notified of the operator's clicks on a test-guide toolbar.
///
/// Implemented by: the host and the plug-in. Optional. Since contract version 1. User-interface thread only.
class ITgToolbarEvents : public virtual IObject {
 public:
  /// The operator chose the button or entry with that command number.
  void OnCommand(std::int32_t lCommand) { ITgToolbarEvents_OnCommand(lCommand); }

 private:
  virtual void ITgToolbarEvents_OnCommand(std::int32_t lCommand) = 0;
};

}  // namespace orvik
