#pragma once

#include <chrono>
#include <csignal>
#include <string>
#include <vector>

#include "tests/support/Process.h"

namespace kill_test {

using support::Finished;

/// When a program is killed.
struct Moment {
  /// After this many lines of output; -1 for any.
  int lines = -1;
  /// After this many changes to files of the folders; -1 for any.
  int touches = -1;
  std::vector<std::string> folders = {};
  /// This long after that, or after the start.
  std::chrono::microseconds delay{0};
  /// With this signal. A program may handle any but SIGKILL and end in order.
  int signal = SIGKILL;
};

/// Runs a program, given by path and arguments, and kills it at the moment unless it ends before.
Finished RunUntil(const Moment& moment, std::vector<std::string> words);

/// Runs a program to its end.
Finished Run(std::vector<std::string> words);

/// Whether a signal ended the program.
inline bool WasKilled(const Finished& ended) { return ended.status < 0; }

/// The complete lines of its standard output.
std::vector<std::string> Lines(const Finished& ended);

}  // namespace kill_test
