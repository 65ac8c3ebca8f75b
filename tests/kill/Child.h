#pragma once

#include <sys/types.h>

#include <chrono>
#include <csignal>
#include <string>
#include <vector>

#include "host/serial/UniqueFd.h"

namespace kill_test {

/// When a program is killed.
struct Moment {
  /// After so many lines of output; -1 for no matter how many.
  int lines = -1;
  /// After so many changes to the files of the folders; -1 for no matter how many.
  int touches = -1;
  std::vector<std::string> folders = {};
  /// So long after that, or after the start.
  std::chrono::microseconds delay{0};
  /// By this signal. One other than SIGKILL may be taken for a wish that the program ends in order.
  int signal = SIGKILL;
};

/// What a program printed, and how it came to its end.
struct Ended {
  bool killed = false;  ///< otherwise it had ended before its moment came
  int status = -1;      ///< exit status when it was not killed
  std::string output;   ///< standard output
  std::string error;    ///< standard error

  /// The lines that were printed whole.
  std::vector<std::string> Lines() const;
};

/// A program that is running. Safe to use in several threads side by side.
class Child {
 public:
  explicit Child(std::vector<std::string> words);
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;
  ~Child();

  /// Reads what it prints up to the moment, kills it, and reads the rest.
  Ended KilledAt(const Moment& moment);
  /// Waits for its own end.
  Ended Finished();

 private:
  using Clock = std::chrono::steady_clock;

  /// Reads until `until`, the end of the output, or so many lines; whether the output has ended.
  bool Read(Clock::time_point until, int lines);
  /// Reads until files of the folders were changed so often, or the end of the output.
  bool ReadUntilTouched(const std::vector<std::string>& folders, int touches);
  Ended Wait();

  pid_t process_ = -1;
  bench::UniqueFd out_, error_;
  std::string output_;
};

/// Runs a program to its end.
Ended Run(std::vector<std::string> words);

}  // namespace kill_test
