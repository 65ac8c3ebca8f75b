#pragma once

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "host/serial/UniqueFd.h"

namespace cli {

/// What a program left behind.
struct Finished {
  int status = -1;  ///< exit status; -1 when a signal ended it
  std::string out;
  std::string error;
};

/// A program that runs beside the test: what it prints is collected, and it is ended with this object.
class RunningProgram {
 public:
  RunningProgram(const std::string& path, std::vector<std::string> arguments) {
    int out[2], error[2], in[2];
    if (pipe2(out, O_CLOEXEC) != 0 || pipe2(error, O_CLOEXEC) != 0 || pipe2(in, O_CLOEXEC) != 0)
      throw std::runtime_error("no pipe");
    // Ready before the fork: where other threads run, the child may take no memory.
    std::vector<char*> words{const_cast<char*>(path.c_str())};
    for (auto& argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    process_ = fork();
    if (process_ == 0) {
      dup2(in[0], STDIN_FILENO);
      dup2(out[1], STDOUT_FILENO);
      dup2(error[1], STDERR_FILENO);
      execv(words[0], words.data());
      _exit(127);
    }
    in_ = bench::UniqueFd(in[1]);
    streams_[0].from = bench::UniqueFd(out[0]);
    streams_[1].from = bench::UniqueFd(error[0]);
    for (const int end : {in[0], out[1], error[1]}) close(end);
  }
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  ~RunningProgram() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }

  void Signal(int signal) const { kill(process_, signal); }

  void Type(const std::string& text) const {
    if (write(in_.Get(), text.data(), text.size()) != static_cast<ssize_t>(text.size()))
      throw std::runtime_error("the program takes no input");
  }
  void EndInput() { in_.Reset(); }

  /// Reads until the standard output holds the text that often; false when the program ends first.
  bool AwaitOutput(const std::string& text, int times = 1) {
    return ReadUntil([&] {
      std::size_t at = 0;
      for (int i = 0; i < times; ++i) {
        at = streams_[0].text.find(text, at);
        if (at == std::string::npos) return false;
        at += text.size();
      }
      return true;
    });
  }
  /// Reads until the standard error holds the text; false when the program ends first.
  bool AwaitError(const std::string& text) {
    return ReadUntil([&] { return streams_[1].text.find(text) != std::string::npos; });
  }
  const std::string& Output() const { return streams_[0].text; }

  /// Waits for the end, at most a minute.
  Finished Wait() {
    ReadUntil([] { return false; });
    int status = 0;
    const auto deadline = Deadline();
    while (waitpid(process_, &status, WNOHANG) == 0) {
      if (std::chrono::steady_clock::now() > deadline) throw std::runtime_error("the program does not end");
      poll(nullptr, 0, 5);
    }
    process_ = -1;
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, streams_[0].text, streams_[1].text};
  }

 private:
  struct Stream {
    bench::UniqueFd from;
    std::string text;
  };

  static std::chrono::steady_clock::time_point Deadline() {
    return std::chrono::steady_clock::now() + std::chrono::minutes(1);
  }

  template <class Condition>
  bool ReadUntil(Condition done) {
    const auto deadline = Deadline();
    while (!done()) {
      std::array<pollfd, 2> watched{};
      for (std::size_t i = 0; i < 2; ++i) watched[i] = {streams_[i].from.Get(), POLLIN, 0};
      if (!streams_[0].from && !streams_[1].from) return false;
      if (std::chrono::steady_clock::now() > deadline)
        throw std::runtime_error("the program says nothing more");
      poll(watched.data(), watched.size(), 1000);
      for (std::size_t i = 0; i < 2; ++i) {
        if (watched[i].revents == 0) continue;
        char buffer[4096];
        const auto count = read(streams_[i].from.Get(), buffer, sizeof buffer);
        if (count > 0)
          streams_[i].text.append(buffer, static_cast<std::size_t>(count));
        else
          streams_[i].from.Reset();
      }
    }
    return true;
  }

  pid_t process_ = -1;
  bench::UniqueFd in_;
  std::array<Stream, 2> streams_;
};

}  // namespace cli
