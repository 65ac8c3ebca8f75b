#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "host/serial/LineReader.h"
#include "host/serial/MemoryTransport.h"
#include "tester/Tester.h"
#include "toolkit/loop/ILoop.h"

namespace support {

/// The far end of a line in memory: the simulated tester or a script of the test, on the clock of a loop.
class SimulatedLine {
 public:
  /// Receives each command line instead of the tester, without line end.
  using Script = std::function<void(const std::string& command)>;

  SimulatedLine(std::shared_ptr<toolkit::loop::ILoop> loop, sim::Profile profile)
      : loop_(std::move(loop)), tester_(std::move(profile)) {
    heard_ = line_->Sent().Subscribe([this](std::string_view bytes) { Hear(bytes); });
  }
  SimulatedLine(const SimulatedLine&) = delete;
  SimulatedLine& operator=(const SimulatedLine&) = delete;
  ~SimulatedLine() {
    loop_->Forget(call_);
    loop_->Forget(back_);
  }

  const std::shared_ptr<host::serial::MemoryLine>& Line() const { return line_; }
  sim::Tester& Tester() { return tester_; }

  /// Replaces the tester by a script; empty restores the tester.
  void AnswerBy(Script script) { script_ = std::move(script); }
  /// Sends a line, with its end, to the host; after the delay.
  void Reply(const std::string& line, std::chrono::microseconds delay = {}) {
    SendBytes(line + "\r\n", delay);
  }
  /// Sends bytes as they are.
  void SendBytes(const std::string& bytes, std::chrono::microseconds delay = {}) {
    if (delay <= std::chrono::microseconds::zero())
      line_->Deliver(bytes);
    else
      loop_->CallAt(loop_->Now() + delay, [line = line_, bytes] { line->Deliver(bytes); });
  }
  /// Pulls the cable. The port that is open fails; a later one can be opened.
  void Unplug() { line_->Unplug(); }

 private:
  void Hear(std::string_view bytes) {
    if (!script_) {
      tester_.Receive(bytes, loop_->Now());
      Schedule();
      return;
    }
    const auto script = script_;
    reader_.Feed(bytes, [&](std::string_view line, bool) { script(std::string(line)); });
  }

  void Schedule() {
    loop_->Forget(call_);
    if (const auto due = tester_.NextDue()) call_ = loop_->CallAt(*due, [this] { SendDue(); });
  }

  void SendDue() {
    while (const auto output = tester_.TakeDue(loop_->Now())) {
      if (!output->bytes.empty()) line_->Deliver(output->bytes);
      if (output->hangUp) line_->Unplug();
      if (output->backAfter)
        back_ = loop_->CallAt(loop_->Now() + *output->backAfter, [this] { tester_.PlugIn(); });
    }
    Schedule();
  }

  const std::shared_ptr<toolkit::loop::ILoop> loop_;
  const std::shared_ptr<host::serial::MemoryLine> line_ = std::make_shared<host::serial::MemoryLine>();
  sim::Tester tester_;
  Script script_;
  host::serial::LineReader reader_;
  toolkit::loop::ILoop::Id call_ = 0;
  toolkit::loop::ILoop::Id back_ = 0;
  orvik::platform::Subscription heard_;
};

}  // namespace support
