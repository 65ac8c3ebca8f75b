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
  bench::Wire& Wire() { return *wire_; }
  const bench::ILoop& Loop() const { return *loop_; }
  std::shared_ptr<bench::ILoop> SharedLoop() const { return loop_; }
  orvik::platform::Time Now() const { return loop_->Now(); }

  void Open() {
    port_ = bench::Port::Create(std::make_unique<bench::MemoryTransport>(line_), loop_, wire_, "memory");
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
  std::shared_ptr<bench::EventLoop> loop_ =
      std::make_shared<bench::EventLoop>(bench::ClockKind::kVirtual, 1.0);
  std::shared_ptr<bench::Wire> wire_ = std::make_shared<bench::Wire>();
  std::shared_ptr<bench::MemoryLine> line_ = std::make_shared<bench::MemoryLine>();
  std::shared_ptr<orvik::IPort> port_;
};

}  // namespace app
