#pragma once

#include <memory>
#include <string>

#include "host/serial/ITransport.h"
#include "host/serial/SerialDevice.h"
#include "toolkit/loop/ILoop.h"

namespace host::serial {

/// A serial device, read while messages are processed. After a hang-up or a failure it is closed.
class DeviceTransport final : public ITransport {
 public:
  /// Opens the device; `HostError` as `SerialDevice`.
  DeviceTransport(std::string path, const LineSettings& settings, std::shared_ptr<toolkit::loop::ILoop> loop);
  ~DeviceTransport() override;

  void SetReceiver(Receiver receiver) override;
  void SetFailureListener(std::function<void()> listener) override;
  void Write(std::string_view bytes) override;
  bool IsOpen() const override { return device_.IsOpen(); }
  void Close() override;

 private:
  void ReadArrived();
  void Fail();

  const std::shared_ptr<toolkit::loop::ILoop> loop_;
  SerialDevice device_;
  toolkit::loop::ILoop::Id watch_ = 0;
  Receiver receiver_;
  std::function<void()> failureListener_;
  /// Expires with this object: a receiver may release it.
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace host::serial
