#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "tester/Faults.h"
#include "tester/RecordedWire.h"

namespace sim {

/// Answers as the tester in a wire log did: the same lines, as long after the command.
///
/// The log is followed command by command. A command that it does not hold at this point is answered as the
/// simulated tester would, and said; a new session ("IREM") goes on at the log's next one.
class Replay : public Faults {
 public:
  /// Hears, for people, of each command that the log does not answer.
  using Listener = std::function<void(const std::string& remark)>;

  Replay(RecordedWire wire, Listener listener);

  void OnReply(const Exchange& exchange, Reply& reply) override;

 private:
  bool FindPlace(const Exchange& exchange);
  void Say(const Exchange& exchange) const;

  const RecordedWire wire_;
  const Listener listener_;
  std::size_t next_ = 0;  ///< the command of the log that is expected now
};

}  // namespace sim
