#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// One line on its way to the client, before it is queued.
struct Outgoing {
  std::string bytes;  ///< as they go over the wire, line end included
  std::chrono::microseconds
      delay{};          ///< added to the due time, in the tester's own time (divided by the time-scale)
  bool hangUp = false;  ///< end the line when due, after the bytes
};

/// What a reply answers.
struct Exchange {
  std::string_view command;  ///< the mnemonic received
  std::uint64_t index = 0;   ///< of all commands received, this is the index-th, counted from 1
};

/// A hook that sees every reply before it is queued.
class Faults {
 public:
  virtual ~Faults() = default;

  /// `replies` holds the one good reply to `exchange`. The hook may change it, delay it, add to it, or empty
  /// the list: then nothing is sent. The tester itself has obeyed the command by then, whatever becomes of
  /// the reply.
  virtual void OnReply(const Exchange& exchange, std::vector<Outgoing>& replies) = 0;
};

}  // namespace sim
