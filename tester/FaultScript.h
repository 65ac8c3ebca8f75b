#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tester/Fault.h"
#include "tester/Faults.h"

namespace sim {

/// Faults read from a text: lines "at COMMAND [NTH] FAULT". tester/README.md describes them.
class FaultScript : public Faults {
 public:
  /// Throws InputError naming `name` and the line when the text is not a fault script.
  FaultScript(std::string_view content, const std::string& name);

  void OnReply(const Exchange& exchange, Reply& reply) override;

  /// How many rules the script has.
  std::size_t Size() const { return rules_.size(); }

 private:
  struct Rule {
    std::string command;    ///< "ANY" for every command
    std::uint64_t nth = 0;  ///< which occurrence, counted from 1; 0 for every one
    Fault fault;
    std::uint64_t seen = 0;  ///< occurrences so far
  };

  static Rule ParseRule(const std::string& line, const std::string& name, int number);

  std::vector<Rule> rules_;
};

/// Reads a fault script. Throws InputError, naming file and line, when it cannot.
std::shared_ptr<FaultScript> LoadFaultScript(const std::string& path);

}  // namespace sim
