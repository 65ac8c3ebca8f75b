#include "toolkit/headless/ContainerSite.h"

#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/headless/Desktop.h"
#include "toolkit/headless/Panel.h"

namespace toolkit::headless {
namespace {

using orvik::HostError;
using Value = platform::IContainerSite::Value;

platform::Twips* Side(platform::Rect& bounds, const std::string& name) {
  if (name == "Left") return &bounds.left;
  if (name == "Top") return &bounds.top;
  if (name == "Width") return &bounds.width;
  if (name == "Height") return &bounds.height;
  return nullptr;
}

template <class Type>
const Type& Expect(const std::string& name, const Value& value) {
  const auto* held = std::get_if<Type>(&value);
  if (!held) Fail(HostError::kTypeMismatch, "property " + name + " needs a value of another type");
  return *held;
}

[[noreturn]] void FailUnknown(const std::string& name) {
  Fail(HostError::kNoSuchProperty, "Object does not support this property: " + name);
}

}  // namespace

std::shared_ptr<platform::IPanel> ContainerSite::Panel() const { return panel_; }

Value ContainerSite::ExtenderProperty(const std::string& name) const {
  platform::Rect bounds = Bounds();
  if (const auto* side = Side(bounds, name)) return static_cast<int>(*side);
  if (name == "Name") return Name();
  if (name == "Visible") return Visible();
  if (name == "Enabled") return Enabled();
  if (name == "ToolTipText") return ToolTip();
  FailUnknown(name);
}

void ContainerSite::SetExtenderProperty(const std::string& name, const Value& value) {
  platform::Rect bounds = Bounds();
  if (auto* side = Side(bounds, name)) {
    *side = Expect<int>(name, value);
    return SetBounds(bounds);
  }
  if (name == "Visible") return SetVisible(Expect<bool>(name, value));
  if (name == "Enabled") return SetEnabled(Expect<bool>(name, value));
  if (name == "ToolTipText") return SetToolTip(Expect<std::string>(name, value));
  if (name == "Name") Fail(HostError::kInvalidArgument, "the name of a placed control cannot be changed");
  FailUnknown(name);
}

void ContainerSite::SetFocus() {
  if (panel_) panel_->SetFocus();
}

void ContainerSite::Hold(std::shared_ptr<platform::IUserControl> object) {
  panel_ = GetDesktop().Make<headless::Panel>(Name());
  panel_->SetParentWindow(shared_from_this());
  object_ = std::move(object);
  object_->AttachTo(std::static_pointer_cast<ContainerSite>(shared_from_this()));
}

platform::Size ContainerSite::NaturalSize() const {
  return panel_ ? panel_->NaturalSize() : platform::Size{};
}

void ContainerSite::Stop() {
  if (panel_) panel_->Stop();
  SetParentWindow(Container());
}

void ContainerSite::BoundsChanged(const platform::Rect&) {
  if (panel_) panel_->SetBounds({0, 0, Bounds().width, Bounds().height});
}

}  // namespace toolkit::headless
