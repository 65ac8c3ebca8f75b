#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/As.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IUserControl.h"

namespace conformance {

/// The control of that name and kind on a panel, or empty.
template <class Kind>
std::shared_ptr<Kind> Find(const orvik::platform::IPanel& panel, const std::string& name) {
  return std::dynamic_pointer_cast<Kind>(panel.Find(name));
}

/// The user control on the site of that name, in the view that is needed; or empty.
template <class Interface>
std::shared_ptr<Interface> FindObject(const orvik::platform::IPanel& panel, const std::string& name) {
  const auto site = Find<orvik::platform::IContainerSite>(panel, name);
  return site ? std::dynamic_pointer_cast<Interface>(site->Object()) : nullptr;
}

/// Clicks the button of that name, as the operator does; false when there is none.
inline bool Click(const orvik::platform::IPanel& panel, const std::string& name) {
  const auto button = Find<orvik::platform::IButton>(panel, name);
  if (button) button->Click();
  return button != nullptr;
}

}  // namespace conformance
