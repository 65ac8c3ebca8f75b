#include "toolkit/controls/HostControl.h"

#include "OrvikTypeLib/As.h"
#include "platform/IPanel.h"

namespace toolkit::controls {
namespace {

constexpr char kSource[] = "orvik-bench";

}  // namespace

void HostControl::AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) {
  if (attached_)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, kSource, "the control is already placed");
  attached_ = true;
  site_ = site;
  Build(orvik::Required(orvik::Required(site).Panel()));
}

std::string HostControl::Text(const std::string& text) const {
  if (language_) return language_->Translate(text, "orvik", {});
  const auto separator = text.find("::");
  return separator == std::string::npos ? text : text.substr(separator + 2);
}

std::shared_ptr<orvik::platform::IContainerSite> HostControl::Site() const { return orvik::Required(site_); }

}  // namespace toolkit::controls
