#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// Bytes on their way to the client, before they are queued; normally one line.
struct Outgoing {
  std::string bytes;  ///< as they go over the wire, line end included
  std::chrono::microseconds
      delay{};          ///< added to the due time, in the tester's own time (divided by the time-scale)
  bool hangUp = false;  ///< the cable is pulled when due, after the bytes
  /// With `hangUp`: the cable is plugged in again after this time, in the tester's own time; otherwise never.
  std::optional<std::chrono::microseconds> backAfter{};
};

/// What a command is answered with.
struct Reply {
  std::vector<Outgoing> lines;        ///< empty if the command is not answered
  std::chrono::microseconds takes{};  ///< the tester is at it so long, in its own time; the lines come then
  bool forget = false;                ///< the tester has left remote mode afterwards
  std::vector<std::string> notes;     ///< remarks for the trace
};

/// What a reply answers.
struct Exchange {
  std::string_view command;  ///< the mnemonic received
  std::uint64_t index = 0;   ///< of all commands received, this is the index-th, counted from 1
  std::string_view line;     ///< the whole command as received, without its line end
};

/// A hook that sees every reply before it is queued.
class Faults {
 public:
  virtual ~Faults() = default;

  /// `reply` is the good one to `exchange`, of one line. The hook may change everything in it. The tester
  /// itself has obeyed the command by then.
  virtual void OnReply(const Exchange& exchange, Reply& reply) = 0;
};

}  // namespace sim
