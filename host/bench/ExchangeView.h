#pragma once

#include <string>

#include "host/plugins/keld/KeldProtocol.h"
#include "host/serial/Wire.h"

namespace host::bench {

/// How far the exchange with the tester has come, as seen on the wire.
class ExchangeView {
 public:
  /// Updates the state.
  void Take(const serial::WireRecord& record);

  bool Open() const { return open_; }
  /// The command sent last; empty before the first.
  const std::string& Command() const { return command_; }
  /// Which attempt it was, from 1.
  int Attempt() const { return attempt_; }
  /// Whether its reply has not come in.
  bool Waiting(orvik::platform::Time now) const {
    return waiting_ && now < since_ + plugins::keld::kReplyTime;
  }
  /// Whether the command sent last has no reply, in time or not yet.
  bool Unanswered() const { return waiting_; }
  /// When the time for its reply is over.
  orvik::platform::Time ReplyEnds() const { return since_ + plugins::keld::kReplyTime; }
  /// The current state for people: "STST,410,0, attempt 1 of 3: reply within 1.8 s".
  std::string Text(orvik::platform::Time now) const;

 private:
  bool open_ = false;
  bool waiting_ = false;
  std::string command_;
  int attempt_ = 0;
  orvik::platform::Time since_{};  ///< of the command or the reply
};

}  // namespace host::bench
