#pragma once

#include <cstdint>
#include <functional>

#include "platform/Types.h"

namespace toolkit::loop {

/// The event loop as devices see it. User-interface thread only.
class ILoop {
 public:
  using Id = std::uint64_t;

  ILoop() = default;
  ILoop(const ILoop&) = delete;
  ILoop& operator=(const ILoop&) = delete;
  virtual ~ILoop() = default;

  virtual orvik::platform::Time Now() const = 0;
  /// Calls back during message processing while the descriptor is readable or has hung up, until `Forget`.
  virtual Id WatchReadable(int descriptor, std::function<void()> callback) = 0;
  /// Calls back once, at that time.
  virtual Id CallAt(orvik::platform::Time when, std::function<void()> callback) = 0;
  /// Ends a watch or a call; ignores one that has ended.
  virtual void Forget(Id id) = 0;
};

}  // namespace toolkit::loop
