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
  /// After so many lines of output; -1 for no matter how many.
  int lines = -1;
  /// After so many changes to the files of the folders; -1 for no matter how many.
  int touches = -1;
  std::vector<std::string> folders = {};
  /// So long after that, or after the start.
  std::chrono::microseconds delay{0};
  /// By this signal. One other than SIGKILL may be taken as a request to end in order.
  int signal = SIGKILL;
};

/// Runs a program, its path and arguments, until the moment; kills it then unless it has ended before.
Finished RunUntil(const Moment& moment, std::vector<std::string> words);

/// Runs a program to its end.
Finished Run(std::vector<std::string> words);

/// Whether a signal ended the program.
inline bool WasKilled(const Finished& ended) { return ended.status < 0; }

/// The complete lines of its standard output.
std::vector<std::string> Lines(const Finished& ended);

}  // namespace kill_test
