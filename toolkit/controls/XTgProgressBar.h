#pragma once

#include <memory>

#include "OrvikTypeLib/ITgProgressBar.h"
#include "platform/Controls.h"
#include "toolkit/controls/HostControl.h"

namespace toolkit::controls {

/// The progress bar "prgBar". Operations fail with `HostError` 91 until the control is placed.
class XTgProgressBar final : public virtual orvik::ITgProgressBar, public HostControl {
 public:
  using HostControl::HostControl;

 private:
  std::string IObject_ClassID() const override;
  void ITgProgressBar_SetRange(std::int32_t lMinimum, std::int32_t lMaximum) override;
  void ITgProgressBar_SetValue(std::int32_t lValue) override;
  std::int32_t ITgProgressBar_Value() const override;

  void Build(orvik::platform::IPanel& panel) override;

  std::shared_ptr<orvik::platform::IProgressBar> bar_;
};

}  // namespace toolkit::controls
