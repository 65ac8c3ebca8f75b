#pragma once

#include <memory>
#include <string>
#include <variant>

#include "platform/IPanel.h"

namespace orvik::platform {

class IUserControl;

/// The site of a user control in a panel: the outside of the control for its container, and the
/// panel inside it.
class IContainerSite : public virtual IControl {
 public:
  using Value = std::variant<bool, int, std::string>;

  /// The user control.
  virtual std::shared_ptr<IUserControl> Object() const = 0;
  /// The surface inside the control.
  virtual std::shared_ptr<IPanel> Panel() const = 0;

  /// A property that the container adds to the control: "Name", "Left", "Top", "Width", "Height" (twips),
  /// "Visible", "Enabled", "ToolTipText". Any other name fails with the host's error 438.
  virtual Value ExtenderProperty(const std::string& name) const = 0;
  virtual void SetExtenderProperty(const std::string& name, const Value& value) = 0;
};

}  // namespace orvik::platform
