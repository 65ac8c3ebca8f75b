#pragma once

#include <functional>
#include <string_view>

namespace host::serial {

/// Carries bytes to the instrument and back. User-interface thread only.
class ITransport {
 public:
  using Receiver = std::function<void(std::string_view bytes)>;

  ITransport() = default;
  ITransport(const ITransport&) = delete;
  ITransport& operator=(const ITransport&) = delete;
  virtual ~ITransport() = default;

  /// Sets the function that is called with received bytes, while messages are processed.
  virtual void SetReceiver(Receiver receiver) = 0;
  /// Sets the function that is called once when the line fails or hangs up (not for `Close`).
  virtual void SetFailureListener(std::function<void()> listener) = 0;
  /// Sends all the bytes. `HostError` 57 if the line is closed or fails; a failure closes it.
  virtual void Write(std::string_view bytes) = 0;
  /// False after `Close` or a failure.
  virtual bool IsOpen() const = 0;
  /// Closing twice is allowed.
  virtual void Close() = 0;
};

}  // namespace host::serial
