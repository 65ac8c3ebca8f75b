#pragma once

#include <memory>
#include <string>

#include "host/serial/ITransport.h"
#include "platform/Event.h"

namespace host::serial {

class MemoryTransport;

/// The far end of a line inside the process: receives what the near end sends, and replies.
class MemoryLine {
 public:
  /// Bytes that the near end has sent.
  orvik::platform::Event<std::string_view>& Sent() { return sent_; }
  /// Whether a near end is open.
  bool Connected() const { return near_ != nullptr; }
  /// Sends bytes to the near end; they are lost if none is open.
  void Deliver(std::string_view bytes);
  /// Unplugs the cable: the near end fails. Another one can be opened later.
  void Unplug();

 private:
  friend class MemoryTransport;

  orvik::platform::Event<std::string_view> sent_;
  ITransport::Receiver receiver_;
  std::function<void()> failureListener_;
  const MemoryTransport* near_ = nullptr;
};

/// The near end of such a line.
class MemoryTransport final : public ITransport {
 public:
  /// `HostError` 57 if the line already has a near end.
  explicit MemoryTransport(std::shared_ptr<MemoryLine> line);
  ~MemoryTransport() override;

  void SetReceiver(Receiver receiver) override;
  void SetFailureListener(std::function<void()> listener) override;
  void Write(std::string_view bytes) override;
  bool IsOpen() const override;
  void Close() override;

 private:
  std::shared_ptr<MemoryLine> line_;  ///< empty once closed
};

}  // namespace host::serial
