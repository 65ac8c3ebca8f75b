#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "tester/Faults.h"
#include "tests/system/history/Operation.h"
#include "tests/system/history/World.h"

namespace history {

/// Makes the simulated tester read the true values of a world, behave as a run's setup says, and have its
/// faults. Knows the true reply to each command.
class TrueTester final : public sim::Faults {
 public:
  TrueTester(const World& world, Equipment equipment, const TesterSetup& setup);

  /// The true reply to the last such command, as bytes without line end; empty if the tester could not give
  /// one.
  std::string TrueReplyTo(const std::string& command) const;
  /// The reading in it; none for another reply.
  struct Reading {
    Amount amount;
    bool overload = false;
  };
  const Reading* ReadingIn(const std::string& command) const;

 private:
  void OnReply(const sim::Exchange& exchange, sim::Reply& reply) override;
  std::string TrueLine(const std::string& command, const std::string& said);
  std::string Result(const std::string& command, int testId, int setting);
  const Behaviour* BehaviourIn(int testId, Behaviour::Kind kind) const;

  const World& world_;
  const Equipment equipment_;
  const TesterSetup& setup_;
  std::unique_ptr<sim::Faults> script_, random_;
  std::uint64_t commands_ = 0;
  int sessions_ = 0;
  std::map<std::string, std::string> replies_;
  std::map<std::string, Reading> readings_;
};

/// The unit on the wire of readings that are recorded in this one.
std::string UsualUnit(int testId);

}  // namespace history
