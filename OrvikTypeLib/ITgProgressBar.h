#pragma once

#include <cstdint>
#include <memory>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// A progress bar (control class "orvikTGCL2.XTgProgressBar").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class ITgProgressBar : public virtual IObject {
 public:
  /// Sets the bounds; a maximum not above the minimum is refused with `HostError`.
  void SetRange(std::int32_t lMinimum, std::int32_t lMaximum) { ITgProgressBar_SetRange(lMinimum, lMaximum); }
  /// Shows a value, held within the bounds.
  void SetValue(std::int32_t lValue) { ITgProgressBar_SetValue(lValue); }
  /// The value shown.
  std::int32_t Value() const { return ITgProgressBar_Value(); }

 private:
  virtual void ITgProgressBar_SetRange(std::int32_t lMinimum, std::int32_t lMaximum) = 0;
  virtual void ITgProgressBar_SetValue(std::int32_t lValue) = 0;
  virtual std::int32_t ITgProgressBar_Value() const = 0;
};

}  // namespace orvik
