#pragma once

#include <functional>
#include <string_view>

namespace bench {

/// A way for bytes to the instrument and back. User-interface thread only.
class ITransport {
 public:
  using Receiver = std::function<void(std::string_view bytes)>;

  ITransport() = default;
  ITransport(const ITransport&) = delete;
  ITransport& operator=(const ITransport&) = delete;
  virtual ~ITransport() = default;

  /// Who is given the bytes that come in, while messages are processed.
  virtual void SetReceiver(Receiver receiver) = 0;
  /// Who is told, once, that the line has failed or has been hung up (not of `Close`).
  virtual void SetFailureListener(std::function<void()> listener) = 0;
  /// Sends all the bytes. `HostError` 57 when the line is closed or fails; it reads as closed then.
  virtual void Write(std::string_view bytes) = 0;
  /// False after `Close`, and once the line has failed.
  virtual bool IsOpen() const = 0;
  /// Closing twice is allowed.
  virtual void Close() = 0;
};

}  // namespace bench
