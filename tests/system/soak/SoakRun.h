#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/judge/Verdict.h"
#include "host/run/DocumentRunner.h"

namespace soak {

/// What is run: one test, or a sequence of two.
enum class Kind { kTest, kSequence };

/// One run, derived from its seed.
struct Plan {
  Kind kind = Kind::kTest;
  /// Readings of the tester, mOhm by test; they differ from those of the previous run.
  std::map<int, int> truth;
  /// Lines of a fault script; empty for none.
  std::string script;
  /// Share of randomly corrupted replies, 0 to 1.
  double faultRate = 0;
  /// The call of the message pump at which the operator asks for a stop.
  std::optional<int> stopAt;
  std::uint64_t seed = 0;

  bool Undisturbed() const { return script.empty() && faultRate == 0 && !stopAt; }
};

/// Readings up to this pass, mOhm.
inline constexpr int kHighest = 300;

/// The plan of the run of that number.
Plan DrawPlan(std::uint64_t seed, int run);

/// "sequence, faults at 0.31 (seed 17), stop at call 40": identifies the run in a failure message.
std::string TextOf(const Plan& plan);

/// What a run left behind.
struct Evidence {
  host::run::DocumentRunner::End end{};
  std::vector<host::judge::JudgedElement> elements;
  host::judge::Outcome outcome{};
  std::vector<std::string> sent;
  std::vector<std::string> received;
  bool inRemoteMode = false;  ///< the tester
  bool portOpen = false;
  std::size_t windows = 0;  ///< still open
  /// The elements of the reopened document; empty if it was not saved.
  std::vector<host::judge::JudgedElement> reopened;
};

/// Violations: a pass that was not measured, a verdict that does not match the tester's own reading, an
/// undisturbed run with a wrong end, a window or a port left open.
std::vector<std::string> Offences(const Plan& plan, const Evidence& evidence);

/// The tester's reply with its reading of a test.
std::string ReplyTo(int testId, int milliohms);

/// The verdicts of the elements: "doubtful, passed, doubtful".
std::string VerdictsOf(const std::vector<host::judge::JudgedElement>& elements);

}  // namespace soak
