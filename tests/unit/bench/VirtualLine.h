#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IMessage.h"
#include "host/serial/MemoryTransport.h"
#include "host/serial/Port.h"
#include "toolkit/loop/EventLoop.h"

namespace app {

/// A port on a line in memory, on the virtual clock, whose wire the classes under test hear.
class VirtualLine {
 public:
  host::serial::Wire& Wire() { return *wire_; }
  const toolkit::loop::ILoop& Loop() const { return *loop_; }
  std::shared_ptr<toolkit::loop::ILoop> SharedLoop() const { return loop_; }
  orvik::platform::Time Now() const { return loop_->Now(); }

  void Open() {
    port_ = host::serial::Port::Create(std::make_unique<host::serial::MemoryTransport>(line_), loop_, wire_,
                                       "memory");
  }
  void Close() { port_->Close(); }
  void Send(const std::string& mnemonic, const std::vector<std::string>& parameters = {}) {
    port_->Send(port_->CreateMessage(mnemonic, parameters));
  }
  void Answer(const std::string& reply) {
    line_->Deliver(reply + "\r\n");
    while (port_->ReceivedCount() > 0) port_->TakeMessage();
  }
  void Pass(std::chrono::milliseconds time) { loop_->Wait(loop_->Now() + time); }

 private:
  std::shared_ptr<toolkit::loop::EventLoop> loop_ =
      std::make_shared<toolkit::loop::EventLoop>(toolkit::loop::ClockKind::kVirtual, 1.0);
  std::shared_ptr<host::serial::Wire> wire_ = std::make_shared<host::serial::Wire>();
  std::shared_ptr<host::serial::MemoryLine> line_ = std::make_shared<host::serial::MemoryLine>();
  std::shared_ptr<orvik::IPort> port_;
};

}  // namespace app
