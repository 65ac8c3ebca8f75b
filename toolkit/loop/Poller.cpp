#include "toolkit/loop/Poller.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

#include "OrvikTypeLib/HostError.h"

namespace toolkit::loop {
namespace {

[[noreturn]] void Fail(const std::string& what) {
  throw orvik::HostError(orvik::HostError::kDeviceError, "orvik-bench", what + ": " + std::strerror(errno));
}

}  // namespace

Poller::Poller() : wakeDescriptor_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {
  if (wakeDescriptor_ < 0) Fail("cannot create the event loop's wake-up descriptor");
}

Poller::~Poller() { close(wakeDescriptor_); }

Poller::Id Poller::Watch(int descriptor, std::function<void()> callback) {
  const Id id = kWatchBit | nextId_++;
  watches_.push_back({id, descriptor, std::make_shared<const std::function<void()>>(std::move(callback))});
  return id;
}

void Poller::Forget(Id id) {
  const auto found =
      std::find_if(watches_.begin(), watches_.end(), [id](const Watched& w) { return w.id == id; });
  if (found == watches_.end()) return;
  // Destroyed last: the destructor of what the callback holds may use this object.
  const auto callback = std::move(found->callback);
  watches_.erase(found);
}

std::vector<int> Poller::Descriptors() const {
  std::vector<int> descriptors{wakeDescriptor_};
  for (const Watched& watched : watches_) descriptors.push_back(watched.descriptor);
  return descriptors;
}

void Poller::Wake() noexcept {
  const int error = errno;
  woken_.store(true);
  const std::uint64_t one = 1;
  // If the counter is full, the descriptor is already readable.
  [[maybe_unused]] const auto written = write(wakeDescriptor_, &one, sizeof one);
  errno = error;
}

void Poller::EmptyWakeDescriptor() noexcept {
  std::uint64_t count = 0;
  [[maybe_unused]] const auto taken = read(wakeDescriptor_, &count, sizeof count);
}

bool Poller::TakeWake() { return woken_.exchange(false); }

bool Poller::Poll(std::chrono::nanoseconds longest) {
  if (watches_.empty() && longest <= std::chrono::nanoseconds::zero()) return false;
  return Sleep(longest) && CallBack();
}

bool Poller::Sleep(std::chrono::nanoseconds longest) {
  ++polls_;
  polled_.assign(1, pollfd{wakeDescriptor_, POLLIN, 0});
  polledIds_.assign(1, 0);
  for (const Watched& watched : watches_) {
    polled_.push_back({watched.descriptor, POLLIN, 0});
    polledIds_.push_back(watched.id);
  }
  // An earlier poll may have read the descriptor before `TakeWake` was called.
  if (woken_.load()) longest = std::chrono::nanoseconds::zero();
  const auto seconds = std::chrono::floor<std::chrono::seconds>(longest);
  const timespec limit{static_cast<time_t>(seconds.count()), static_cast<long>((longest - seconds).count())};
  const int ready = ppoll(polled_.data(), polled_.size(), &limit, nullptr);
  if (ready < 0 && errno != EINTR) Fail("waiting for devices failed");
  if (ready > 0 && polled_.front().revents != 0) EmptyWakeDescriptor();
  return ready > 0;
}

bool Poller::CallBack() {
  const auto poll = polls_;
  bool called = false;
  // Results are outdated after a nested poll, which may have read a descriptor empty.
  for (std::size_t index = 1; poll == polls_ && index < polled_.size(); ++index) {
    if (polled_[index].revents == 0) continue;
    const Id id = polledIds_[index];
    const auto found =
        std::find_if(watches_.begin(), watches_.end(), [id](const Watched& w) { return w.id == id; });
    if (found == watches_.end()) continue;
    const auto callback = found->callback;
    called = true;
    (*callback)();
  }
  return called;
}

}  // namespace toolkit::loop
