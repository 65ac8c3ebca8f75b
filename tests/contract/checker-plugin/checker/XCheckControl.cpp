#include "tests/contract/checker-plugin/checker/XCheckControl.h"

#include "platform/Controls.h"
#include "platform/IContainerSite.h"

namespace check {

void XCheckControl::AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) {
  ++placed_;
  const auto panel = site->Panel();
  panel->AddTextBox(kTextBox);
  panel->SetGrid({{{0, 1}}, {{0, 1}}, {{kTextBox, 0, 0}}});
}

}  // namespace check
