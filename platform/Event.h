#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvik::platform {

/// Keeps a handler subscribed to an event; releasing it ends the subscription, also inside a handler.
class [[nodiscard]] Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<void> slot) : slot_(std::move(slot)) {}

  /// Ends the subscription now.
  void End() { slot_.reset(); }

 private:
  std::shared_ptr<void> slot_;
};

/// An event of an object. Handlers run immediately, in the order of their subscriptions.
///
/// A handler may subscribe, end subscriptions and release the object that raises the event.
template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  /// The handler runs until the subscription is released.
  Subscription Subscribe(Handler handler) {
    auto slot = std::make_shared<Slot>(std::make_shared<Handler>(std::move(handler)));
    std::erase_if(slots_, [](const std::weak_ptr<Slot>& ended) { return ended.expired(); });
    slots_.push_back(slot);
    return Subscription(std::move(slot));
  }

  /// Runs the handlers that are subscribed now; one whose subscription ends meanwhile is skipped.
  void Raise(Args... args) const {
    const auto slots = slots_;
    for (const auto& slot : slots) {
      // The handler alone is held while it runs: once it ends its subscription, a nested raise skips
      // it.
      Slot handler;
      if (const auto subscribed = slot.lock()) handler = *subscribed;
      if (handler) (*handler)(args...);
    }
  }

 private:
  /// Owned by the subscription only.
  using Slot = std::shared_ptr<Handler>;

  std::vector<std::weak_ptr<Slot>> slots_;
};

}  // namespace orvik::platform
