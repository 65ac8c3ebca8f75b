#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"
#include "platform/IUserControl.h"

namespace check {

/// A user control with one text box, to be placed by class identifier.
class XCheckControl final : public orvik::IObject, public orvik::platform::IUserControl {
 public:
  static constexpr char kClassId[] = "orvikCheck.XCheckControl";
  static constexpr char kTextBox[] = "txtInner";

  static std::shared_ptr<XCheckControl> Create() { return std::shared_ptr<XCheckControl>(new XCheckControl); }

  /// How often the control has been placed; once is right.
  int Placed() const { return placed_; }

  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) override;

 private:
  XCheckControl() = default;
  std::string IObject_ClassID() const override { return kClassId; }

  int placed_ = 0;
};

}  // namespace check
