#include "host/serial/MemoryTransport.h"

#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"

namespace host::serial {

using orvik::HostError;

void MemoryLine::Deliver(std::string_view bytes) {
  const auto receiver = receiver_;  // a handler may close the line
  if (near_ && receiver) receiver(bytes);
}

void MemoryLine::Unplug() {
  if (!near_) return;
  near_ = nullptr;
  receiver_ = nullptr;
  const auto listener = std::exchange(failureListener_, nullptr);
  if (listener) listener();
}

MemoryTransport::MemoryTransport(std::shared_ptr<MemoryLine> line) {
  if (line->Connected())
    throw HostError(HostError::kDeviceError, "OrvikComm.PortManager",
                    Tr("the line in memory is held by another port; close that one first"));
  line_ = std::move(line);
  line_->near_ = this;
}

MemoryTransport::~MemoryTransport() { Close(); }

void MemoryTransport::SetReceiver(Receiver receiver) {
  if (IsOpen()) line_->receiver_ = std::move(receiver);
}

void MemoryTransport::SetFailureListener(std::function<void()> listener) {
  if (IsOpen()) line_->failureListener_ = std::move(listener);
}

void MemoryTransport::Write(std::string_view bytes) {
  if (!IsOpen())
    throw HostError(HostError::kDeviceError, "OrvikComm.Port", Tr("the line in memory is closed"));
  const auto line = line_;  // a handler may close the port
  line->sent_.Raise(bytes);
}

bool MemoryTransport::IsOpen() const { return line_ && line_->near_ == this; }

void MemoryTransport::Close() {
  const auto line = std::exchange(line_, nullptr);
  if (!line || line->near_ != this) return;  // after a failure another near end may be open
  line->near_ = nullptr;
  line->receiver_ = nullptr;
  line->failureListener_ = nullptr;
}

}  // namespace host::serial
