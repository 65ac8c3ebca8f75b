#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvik::platform {

/// Holds a handler on an event; letting go of it ends the subscription, also from inside a handler.
class [[nodiscard]] Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<void> slot) : slot_(std::move(slot)) {}

  /// Ends the subscription now.
  void End() { slot_.reset(); }

 private:
  std::shared_ptr<void> slot_;
};

/// Something that happens to an object. Handlers run at once, in the order of their subscriptions.
///
/// A handler may subscribe, end subscriptions and release the object that raises the event.
template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  /// The handler runs until the subscription is let go.
  Subscription Subscribe(Handler handler) {
    auto slot = std::make_shared<Slot>(std::make_shared<Handler>(std::move(handler)));
    std::erase_if(slots_, [](const std::weak_ptr<Slot>& ended) { return ended.expired(); });
    slots_.push_back(slot);
    return Subscription(std::move(slot));
  }

  /// Runs the handlers that are subscribed now; one whose subscription ends meanwhile is passed over.
  void Raise(Args... args) const {
    const auto slots = slots_;
    for (const auto& slot : slots) {
      // The handler alone is held while it runs: once it ends its subscription, a nested raise passes it
      // over.
      Slot handler;
      if (const auto subscribed = slot.lock()) handler = *subscribed;
      if (handler) (*handler)(args...);
    }
  }

 private:
  /// Owned by the subscription alone.
  using Slot = std::shared_ptr<Handler>;

  std::vector<std::weak_ptr<Slot>> slots_;
};

}  // namespace orvik::platform
