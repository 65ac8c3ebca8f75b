#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "tester/Fault.h"
#include "tester/Faults.h"

namespace sim {

/// Faults drawn at random. What becomes of the n-th command depends on the seed, the rate and n alone, so a
/// run of the same commands can be repeated.
class SeededFaults : public Faults {
 public:
  /// Hears each fault as a line of a fault script, "at ANY 7 delay 2300".
  using Listener = std::function<void(const std::string& line)>;

  /// `rate`, 0 to 1, is the share of the replies that are spoiled. `listener` may be empty.
  SeededFaults(std::uint64_t seed, double rate, Listener listener);

  void OnReply(const Exchange& exchange, Reply& reply) override;

 private:
  const std::uint64_t seed_;
  const double rate_;
  const Listener listener_;
};

}  // namespace sim
