#include "host/toolkit/headless/Desktop.h"

#include <stdexcept>

#include "OrvikTypeLib/HostError.h"
#include "host/toolkit/headless/Form.h"

namespace bench::headless {

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
  // Inner panels first: texts have other sizes now.
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
    // What the caller waits for may have come true, so no time passes before it has looked.
    loop_.Process();
    cameBackEmpty_ = false;
    return;
  }
  if (loop_.Wait(deadline) != WaitOutcome::kNothingLeft) {
    cameBackEmpty_ = false;
    return;
  }
  // Those who act while messages are pumped may have done it without a window: the caller looks once more.
  if (!std::exchange(cameBackEmpty_, true)) return;
  cameBackEmpty_ = false;
  if (stalled_) return stalled_();
  throw std::logic_error("waiting for something that can never happen; open forms: " + forms_.ShownNames());
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

}  // namespace bench::headless
