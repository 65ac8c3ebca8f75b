#pragma once

#include <memory>
#include <string>

#include "platform/IContainerSite.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

/// Contains a user control. The site owns the control and the panel inside.
class ContainerSite final : public Control, public virtual platform::IContainerSite {
 public:
  using Control::Control;

  std::shared_ptr<platform::IUserControl> Object() const override { return object_; }
  std::shared_ptr<platform::IPanel> Panel() const override;
  Value ExtenderProperty(const std::string& name) const override;
  /// `HostError` 438 for an unknown name, 13 for a value of another type, 5 for "Name", which cannot change.
  void SetExtenderProperty(const std::string& name, const Value& value) override;
  /// Moves the focus to the first control inside that can have it.
  void SetFocus() override;

  /// Owns the user control from now on and lets it build itself.
  void Hold(std::shared_ptr<platform::IUserControl> object);
  platform::Size NaturalSize() const override;
  /// Stops the timers inside and moves a docked control back to its container.
  void Stop() override;

 protected:
  void BoundsChanged(const platform::Rect& old) override;

 private:
  std::shared_ptr<headless::Panel> panel_;
  std::shared_ptr<platform::IUserControl> object_;
};

}  // namespace toolkit::headless
