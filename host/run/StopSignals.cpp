#include "host/run/StopSignals.h"

#include <atomic>
#include <utility>

#include "toolkit/headless/Application.h"

namespace host::run {

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

// A signal handler may only use lock-free atomics.
std::atomic<toolkit::headless::Application*> signalReceiver{nullptr};
std::atomic<int> arrived{0};

void Handle(int signal) {
  arrived.store(signal);
  if (auto* application = signalReceiver.load()) application->Wake();
}

/// Whether the program was started under "nohup".
bool IgnoresHangUp() {
  struct sigaction action {};
  sigaction(SIGHUP, nullptr, &action);
  return action.sa_handler == SIG_IGN;
}

}  // namespace

StopSignals::StopSignals(toolkit::headless::Application& application, std::function<void(int signal)> stop)
    : stop_(std::move(stop)), woken_(application.Woken().Subscribe([this] { Deliver(); })) {
  signalReceiver.store(&application);
  for (const int signal : kSignals) {
    if (signal == SIGHUP && IgnoresHangUp()) continue;
    Install(signal, &Handle);
  }
  Install(SIGPIPE, SIG_IGN);
}

StopSignals::~StopSignals() {
  for (const auto& [signal, action] : before_) sigaction(signal, &action, nullptr);
  signalReceiver.store(nullptr);
}

void StopSignals::Install(int signal, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  sigaction(signal, &action, &before_.emplace_back(signal, action).second);
}

void StopSignals::Deliver() {
  if (const int signal = arrived.exchange(0)) stop_(signal);
}

}  // namespace host::run
