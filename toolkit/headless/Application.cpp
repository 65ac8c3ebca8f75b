#include "toolkit/headless/Application.h"

#include <utility>

#include "toolkit/headless/Desktop.h"
#include "toolkit/headless/Form.h"

namespace toolkit::headless {

Application::Application(ClockKind kind, double timeScale)
    : desktop_(std::make_shared<Desktop>(kind, timeScale)) {}

Application::~Application() { desktop_->Close(); }

void Application::SetControlFactory(
    std::function<std::shared_ptr<platform::IUserControl>(const std::string& classIdentifier)> factory) {
  desktop_->SetControlFactory(std::move(factory));
}

platform::Event<>& Application::Pumped() { return desktop_->Pumped(); }

void Application::SetStallHandler(std::function<void()> handler) {
  desktop_->SetStallHandler(std::move(handler));
}

void Application::Wake() noexcept { desktop_->Loop().Wake(); }

platform::Event<>& Application::Woken() { return desktop_->Loop().Woken(); }

void Application::SetScreen(IScreen* screen) { desktop_->SetScreen(screen); }

std::chrono::nanoseconds Application::UntilWork() const { return desktop_->Loop().UntilWork(); }

std::shared_ptr<Control> Application::Window(platform::WindowHandle handle) const {
  return desktop_->Windows().Find(handle);
}

std::vector<std::shared_ptr<Control>> Application::WindowsInside(const Control& parent) const {
  return desktop_->Windows().Inside(parent);
}

std::shared_ptr<Control> Application::Focused() const { return desktop_->Forms().Focused(); }

bool Application::IsModal(const Form& form) const { return desktop_->Forms().IsModal(form); }

std::shared_ptr<platform::IForm> Application::CreateForm(const std::string& name) {
  return desktop_->Make<Form>(name);
}

std::vector<std::shared_ptr<platform::IForm>> Application::Forms() const {
  const auto& loaded = desktop_->Forms().Loaded();
  return {loaded.begin(), loaded.end()};
}

std::shared_ptr<platform::IForm> Application::ActiveForm() const { return desktop_->Forms().Active(); }

platform::Event<const std::shared_ptr<platform::IForm>&>& Application::FormShown() {
  return desktop_->Forms().FormShown();
}

void Application::ProcessMessages() { desktop_->ProcessMessages(); }

void Application::WaitMessages(platform::Time deadline) { desktop_->WaitMessages(deadline); }

void Application::Post(std::function<void()> work) { desktop_->Loop().Post(std::move(work)); }

platform::Time Application::Now() const { return desktop_->Loop().Now(); }

void Application::SetParent(platform::WindowHandle child, platform::WindowHandle parent) {
  desktop_->Windows().SetParent(child, parent);
}

platform::WindowHandle Application::Parent(platform::WindowHandle child) const {
  return desktop_->Windows().Parent(child);
}

loop::ILoop::Id Application::WatchReadable(int descriptor, std::function<void()> callback) {
  return desktop_->Loop().WatchReadable(descriptor, std::move(callback));
}

loop::ILoop::Id Application::CallAt(platform::Time when, std::function<void()> callback) {
  return desktop_->Loop().CallAt(when, std::move(callback));
}

void Application::Forget(Id id) { desktop_->Loop().Forget(id); }

}  // namespace toolkit::headless
