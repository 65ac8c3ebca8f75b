#pragma once

#include <sys/types.h>

#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "host/base/UniqueFd.h"

namespace support {

/// How a program ended.
struct Finished {
  int status = -1;  ///< exit status; -1 if a signal ended the program
  std::string out;
  std::string error;
  std::chrono::duration<double> wall{};       ///< from start to end
  std::chrono::duration<double> processor{};  ///< user and system time
};

/// A program that runs beside this one. Its output is collected. The destructor kills it.
///
/// Waiting throws std::runtime_error after two minutes, when the program must be hanging.
class Process {
 public:
  using Clock = std::chrono::steady_clock;

  struct Options {
    std::map<std::string, std::string> environment = {};  ///< variables to set; empty values remove
    bool terminal = false;  ///< runs on a terminal of its own, 160 by 40; both outputs are `out`
  };

  /// @param program path of the program
  /// Throws std::system_error if it cannot be started.
  Process(std::string program, std::vector<std::string> arguments, const Options& options);
  Process(std::string program, std::vector<std::string> arguments)
      : Process(std::move(program), std::move(arguments), Options()) {}
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process();

  pid_t Id() const { return process_; }
  void Signal(int signal) const;
  /// Writes to the standard input, which stays open until `EndInput`.
  void Type(const std::string& text) const;
  void EndInput() { in_.Reset(); }

  /// Reads until the standard output holds the text so many times; false if the program ends first.
  bool AwaitOutput(const std::string& text, int times = 1);
  /// Reads until the standard error holds the text; false if the program ends first.
  bool AwaitError(const std::string& text);
  const std::string& Output() const { return out_.text; }

  enum class ReadEnd { kDone, kClosed, kTimeout };
  /// Reads until `done`, the end of the output, or `deadline`.
  /// @param wake a descriptor whose input also has `done` called; -1 for none
  ReadEnd ReadUntil(const std::function<bool()>& done, Clock::time_point deadline, int wake = -1);

  /// Reads to the end of the output and waits for the end of the program.
  Finished Wait();

 private:
  struct Stream {
    host::UniqueFd from;
    std::string text;
  };

  bool Await(const std::function<bool()>& done);

  pid_t process_ = -1;
  Clock::time_point started_;
  host::UniqueFd in_;
  Stream out_, error_;
};

/// Runs a program to its end.
inline Finished Run(std::string program, std::vector<std::string> arguments) {
  return Process(std::move(program), std::move(arguments)).Wait();
}

/// Runs a line of the shell to its end.
inline Finished RunShell(const std::string& line) { return Run("/bin/sh", {"-c", line}); }

/// Runs a program to its end. Throws std::runtime_error with its output unless that is 0.
Finished RunWell(const std::string& program, std::vector<std::string> arguments);

}  // namespace support
