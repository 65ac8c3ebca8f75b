#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>
#include <vector>

namespace benchmarks {

/// What a program took from its start to its end.
struct Cost {
  std::chrono::duration<double> wall{};
  std::chrono::duration<double> processor{};  ///< user and system time
  int exitStatus = 0;                         ///< 128 and the signal when one ended it
};

/// A program that was started; ended and collected with this object at the latest.
class ChildProcess {
 public:
  /// @param command the program's path and its arguments
  /// @param outputFile where standard output and error go
  /// Throws std::runtime_error when it cannot be started.
  ChildProcess(const std::vector<std::string>& command, const std::string& outputFile);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess();

  /// Waits for the end.
  Cost Wait();
  /// Whether it still runs.
  bool Running();

 private:
  pid_t process_ = -1;
  std::chrono::steady_clock::time_point started_;
};

/// Runs a program to its end. Throws std::runtime_error with what it wrote unless it ends with 0.
Cost RunProgram(const std::vector<std::string>& command, const std::string& outputFile);

/// The whole file as text; empty when there is none.
std::string TextOf(const std::string& file);

}  // namespace benchmarks
