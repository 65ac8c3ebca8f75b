#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"

namespace faults {

/// What is run: one test, or a sequence of two.
enum class Kind { kTest, kSequence };

/// The commands of a run without a fault, one letter each: I is IREM; S and G are STST and GRES of test 410,
/// s and g those of test 420; c is the STST of test 210 that closes a session; E is EREM.
std::string CommandsOf(Kind kind);

/// A fault in the reply to one command, at its first, second or third attempt. The attempts before it are
/// lost.
struct Case {
  Kind kind = Kind::kTest;
  char command = 'I';
  int attempt = 1;
  std::string fault;  ///< as in a fault script
};

/// What became of a run.
struct Observed {
  bool met = true;  ///< the run met its fault
  /// "ISGcE P 0": the commands sent, how each element ended, and the exit status. An element is P passed, F
  /// failed, N not applicable, A aborted, - not tested; a small p or n is doubtful and does not count.
  std::string cell;
  /// What must not be, whatever the fault: a pass that was not measured, a hang.
  std::vector<std::string> offences;
  std::vector<std::string> wireLog;  ///< the lines of orvik-bench's log
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
  void MakeDocument(Kind kind, const std::string& test, const std::vector<std::string>& elements) const;

  const support::TemporaryFolder folder_;
  const std::string timeScale_;
  const std::size_t atOnce_;
};

}  // namespace faults
