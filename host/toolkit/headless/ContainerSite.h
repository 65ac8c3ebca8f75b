#pragma once

#include <memory>
#include <string>

#include "host/toolkit/headless/Control.h"
#include "platform/IContainerSite.h"

namespace bench::headless {

/// The place of a user control. The site owns it and the panel inside.
class ContainerSite final : public Control, public virtual platform::IContainerSite {
 public:
  using Control::Control;

  std::shared_ptr<platform::IUserControl> Object() const override { return object_; }
  std::shared_ptr<platform::IPanel> Panel() const override;
  Value ExtenderProperty(const std::string& name) const override;
  /// `HostError` 438 for an unknown name, 13 for a value of another kind, 5 for "Name", which stays.
  void SetExtenderProperty(const std::string& name, const Value& value) override;
  /// Gives the focus to the first control inside that takes it.
  void SetFocus() override;

  /// Takes the user control in and has it build itself.
  void Hold(std::shared_ptr<platform::IUserControl> object);
  platform::Size NaturalSize() const override;
  /// Timers inside end, and a docked control comes back to its container.
  void Stop() override;

 protected:
  void BoundsChanged(const platform::Rect& old) override;

 private:
  std::shared_ptr<headless::Panel> panel_;
  std::shared_ptr<platform::IUserControl> object_;
};

}  // namespace bench::headless
