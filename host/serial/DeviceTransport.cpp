#include "host/serial/DeviceTransport.h"

#include <array>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"

namespace host::serial {

DeviceTransport::DeviceTransport(std::string path, const LineSettings& settings,
                                 std::shared_ptr<toolkit::loop::ILoop> loop)
    : loop_(std::move(loop)), device_(std::move(path), settings) {
  watch_ = loop_->WatchReadable(device_.Descriptor(), [this] { ReadArrived(); });
}

DeviceTransport::~DeviceTransport() { Close(); }

void DeviceTransport::SetReceiver(Receiver receiver) { receiver_ = std::move(receiver); }

void DeviceTransport::SetFailureListener(std::function<void()> listener) {
  failureListener_ = std::move(listener);
}

void DeviceTransport::Write(std::string_view bytes) {
  if (IsOpen() && device_.Write(bytes)) return;
  const std::string path = device_.Path();
  Fail();
  throw orvik::HostError(orvik::HostError::kDeviceError, "OrvikComm.Port",
                         Tr("serial device %%1 is closed or unplugged; check the cable", {path}));
}

void DeviceTransport::Close() {
  if (!device_.IsOpen()) return;
  loop_->Forget(watch_);
  device_.Close();
}

void DeviceTransport::ReadArrived() {
  const std::weak_ptr<int> alive = alive_;
  std::array<char, 4096> buffer{};
  // Bounded, so that a device that never stops sending cannot block the event loop.
  for (int turn = 0; turn < 16; ++turn) {
    std::size_t count = 0;
    const auto outcome = device_.Read(buffer.data(), buffer.size(), count);
    if (outcome == SerialDevice::ReadOutcome::kFailed) return Fail();
    if (outcome == SerialDevice::ReadOutcome::kNothing) return;
    const auto receiver = receiver_;
    if (receiver) receiver({buffer.data(), count});
    if (alive.expired() || !device_.IsOpen() || count < buffer.size()) return;
  }
}

void DeviceTransport::Fail() {
  Close();
  const auto listener = std::exchange(failureListener_, nullptr);
  if (listener) listener();
}

}  // namespace host::serial
