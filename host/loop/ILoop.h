#pragma once

#include <cstdint>
#include <functional>

#include "platform/Types.h"

namespace bench {

/// What the host's devices need of the event loop behind the windows. User-interface thread only.
class ILoop {
 public:
  using Id = std::uint64_t;

  ILoop() = default;
  ILoop(const ILoop&) = delete;
  ILoop& operator=(const ILoop&) = delete;
  virtual ~ILoop() = default;

  virtual orvik::platform::Time Now() const = 0;
  /// Calls back while messages are processed whenever the descriptor can be read or has hung up, until
  /// `Forget`.
  virtual Id WatchReadable(int descriptor, std::function<void()> callback) = 0;
  /// Calls back once at that time.
  virtual Id CallAt(orvik::platform::Time when, std::function<void()> callback) = 0;
  /// Ends a watch or a call; an identifier that has ended changes nothing.
  virtual void Forget(Id id) = 0;
};

}  // namespace bench
