#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ICustomControl.h"

namespace orvik {

/// Edits the limits of an element (control class "orvikView.XLimitView").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class ILimitView : public virtual ICustomControl {
 public:
  /// Sixth automation method: limit key, caption of the measured quantity, its unit, and the units that
  /// bounds may be entered in, separated by ";".
  void InitializeView(const std::string& sKey, const std::string& sCaption, const std::string& sUnit,
                      const std::string& sAllowedUnits) {
    ILimitView_InitializeView(sKey, sCaption, sUnit, sAllowedUnits);
  }

 private:
  virtual void ILimitView_InitializeView(const std::string& sKey, const std::string& sCaption,
                                         const std::string& sUnit, const std::string& sAllowedUnits) = 0;
};

}  // namespace orvik
