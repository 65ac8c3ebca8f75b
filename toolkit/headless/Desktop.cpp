#include "toolkit/headless/Desktop.h"

#include <stdexcept>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/headless/Form.h"

namespace toolkit::headless {

std::shared_ptr<platform::IUserControl> Desktop::CreateUserControl(const std::string& classIdentifier) const {
  auto control = factory_ ? factory_(classIdentifier) : nullptr;
  if (!control)
    Fail(orvik::HostError::kClassNotRegistered,
         "no control class is registered as \"" + classIdentifier + "\"");
  return control;
}

void Desktop::SetScreen(IScreen* screen) {
  screen_ = screen;
  loop_.SetDispatcher(screen);
  if (!screen) return;
  const auto windows = windows_.All();
  // Inner panels first: texts have other sizes on this screen.
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (const auto panel = std::dynamic_pointer_cast<Panel>(*window)) panel->Relayout();
    (*window)->NotifyChanged();
  }
}

void Desktop::ProcessMessages() {
  pumped_.Raise();
  if (loop_.Process()) cameBackEmpty_ = false;
}

void Desktop::WaitMessages(platform::Time deadline) {
  if (PumpedActed()) {
    // The caller may no longer need to wait, so no time passes before it checks.
    loop_.Process();
    cameBackEmpty_ = false;
    return;
  }
  if (loop_.Wait(deadline) != loop::WaitOutcome::kNothingLeft) {
    cameBackEmpty_ = false;
    return;
  }
  // A handler of `Pumped` may have acted without a window: the caller checks once more.
  if (!std::exchange(cameBackEmpty_, true)) return;
  cameBackEmpty_ = false;
  if (stalled_) return stalled_();
  throw std::logic_error("this wait can never end; open forms: " + forms_.ShownNames());
}

void Desktop::Close() {
  forms_.Clear();
  loop_.Clear();
  factory_ = nullptr;
  stalled_ = nullptr;
}

bool Desktop::PumpedActed() {
  const auto before = activity_;
  pumped_.Raise();
  return activity_ != before;
}

}  // namespace toolkit::headless
