#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"

namespace faults {

/// What is run: one test, of protective earth (410), leakage (610, in ÂµA) or insulation (1010, with a lower
/// bound), or a sequence of two (410 and 420).
enum class Kind { kTest, kLeakage, kInsulation, kSequence };

/// The commands of a run without a fault: "STST 1" and "GRES 1" start the first test and ask for its result,
/// "STST 2" and "GRES 2" the second one's; "STST end" is the STST of test 210 that closes a session.
std::vector<std::string> CommandsOf(Kind kind);

/// The commands in one text: "IREM, STST 1 x3", where one was sent three times in a row.
std::string TextOf(const std::vector<std::string>& commands);
std::vector<std::string> CommandsIn(const std::string& text);

/// A fault in the reply to one command, at its first, second or third attempt. The attempts before it are
/// lost.
struct Case {
  Kind kind = Kind::kTest;
  std::string command = "IREM";
  int attempt = 1;
  std::string fault;  ///< as in a fault script
};

/// What became of a run.
struct Observed {
  bool met = true;       ///< the run met its fault
  std::string sent;      ///< the commands, as `TextOf` has them
  std::string verdicts;  ///< how each element ended, in the words of the JSON: "doubtful, passed, doubtful"
  int exitStatus = -1;
  /// What must not be, whatever the fault: a pass that was not measured, a hang.
  std::vector<std::string> offences;
  std::vector<std::string> wireLog;  ///< the lines of orvik-bench's log

  /// "IREM x3: not tested, exit status 2".
  std::string Text() const { return sent + ": " + verdicts + ", exit status " + std::to_string(exitStatus); }
};

/// Runs the real orvik-bench with the real keld-sim over a pseudo-terminal, in a folder of its own.
class FaultRig {
 public:
  /// Makes the documents. Pauses and time-outs are divided by `timeScale`; `atOnce` runs go on at a time.
  FaultRig(int timeScale, std::size_t atOnce);

  /// One run; may be called by several threads at once.
  Observed Run(const Case& what) const;
  /// One run with a tester that goes wrong as these words of its command line say. `expected` is the fault
  /// that it is to meet; empty for any or none.
  Observed Run(Kind kind, const std::vector<std::string>& testerWords,
               const std::string& expected = {}) const;

  /// All of them, in the order given, many at once.
  std::vector<Observed> RunAll(const std::vector<Case>& cases) const;
  /// The same for any kind of run: `run` makes the one of that number.
  std::vector<Observed> RunAll(std::size_t count, const std::function<Observed(std::size_t)>& run) const;

 private:
  std::string Document(Kind kind) const;
  void MakeDocument(Kind kind, const std::string& test, const std::vector<std::string>& elements,
                    const std::vector<std::string>& limit) const;

  const support::TemporaryFolder folder_;
  const std::string timeScale_;
  const std::size_t atOnce_;
};

}  // namespace faults
