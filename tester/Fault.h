#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tester/Faults.h"

namespace sim {

/// How a reply can go wrong; `FaultForms` describes each.
enum class FaultKind : std::uint8_t {
  Delay,
  Drop,
  Double,
  Truncate,
  Shorten,
  Stall,
  Garble,
  Noise,
  WrongMnemonic,
  Error,
  Reply,
  Forget,
  HangUp,
  Unplug
};

/// What goes wrong with a reply.
struct Fault {
  FaultKind kind = FaultKind::Drop;
  int number = 0;         ///< a count of bytes or an error number, where the kind has one
  std::optional<int> ms;  ///< a time in milliseconds, where the kind has one
  std::string text;       ///< the line of FaultKind::Reply, in the wire's character set
};

inline constexpr int kLongestFaultTime = 600000;   ///< ms
inline constexpr int kHighestErrorNumber = 32767;  ///< error numbers are 16-bit at the receiver

inline constexpr std::size_t kLongestReplyText = 4096;  ///< bytes of FaultKind::Reply; a good line has 1,024
inline constexpr std::size_t kMostReplyLines = 100;     ///< that faults make of one reply

/// How a fault is written in a script, and what it does.
struct FaultForm {
  /// Whether a form takes a number, a time, or the rest of the line.
  enum class Argument : std::uint8_t { None, Bytes, ErrorNumber, Text };
  enum class Time : std::uint8_t { None, Optional, Required };

  std::string_view word;
  FaultKind kind;
  Argument argument;
  Time time;
  std::string_view syntax;   ///< the word with its arguments, such as "stall N [MS]"
  std::string_view meaning;  ///< a sentence about the reply
};

/// All of them, in the order in which they are taught.
const std::vector<FaultForm>& FaultForms();

/// Parses a fault of a script. Throws InputError with `name` and `line` if it is invalid.
Fault ParseFault(std::string_view text, const std::string& name, int line);

/// The fault in the syntax of a script.
std::string FaultText(const Fault& fault);

/// Spoils a reply. It has at most `kMostReplyLines` lines then: what is beyond does not come.
void Apply(const Fault& fault, Reply& reply);

}  // namespace sim
