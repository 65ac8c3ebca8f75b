#include "benchmarks/ChildProcess.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace benchmarks {

namespace {

std::chrono::duration<double> SecondsOf(const timeval& time) {
  return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
}

/// Where the child's output goes.
class OutputTo {
 public:
  explicit OutputTo(const std::string& file) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, file.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0644);
    posix_spawn_file_actions_adddup2(&actions_, STDOUT_FILENO, STDERR_FILENO);
  }
  OutputTo(const OutputTo&) = delete;
  OutputTo& operator=(const OutputTo&) = delete;
  ~OutputTo() { posix_spawn_file_actions_destroy(&actions_); }

  const posix_spawn_file_actions_t* Actions() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command, const std::string& outputFile) {
  std::vector<char*> arguments;
  for (const auto& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  const OutputTo output(outputFile);
  started_ = std::chrono::steady_clock::now();
  const int error =
      posix_spawn(&process_, arguments[0], output.Actions(), nullptr, arguments.data(), environ);
  if (error != 0) {
    process_ = -1;
    throw std::runtime_error(command.front() + " cannot be started: " +
                             std::generic_category().message(error) + "; build it first");
  }
}

ChildProcess::~ChildProcess() {
  if (process_ < 0) return;
  kill(process_, SIGTERM);
  Wait();
}

Cost ChildProcess::Wait() {
  int status = 0;
  rusage used{};
  while (wait4(process_, &status, 0, &used) < 0 && errno == EINTR) {
  }
  const auto ended = std::chrono::steady_clock::now();
  process_ = -1;
  return {ended - started_, SecondsOf(used.ru_utime) + SecondsOf(used.ru_stime),
          WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status)};
}

bool ChildProcess::Running() {
  siginfo_t state{};
  return waitid(P_PID, static_cast<id_t>(process_), &state, WEXITED | WNOHANG | WNOWAIT) == 0 &&
         state.si_pid == 0;
}

Cost RunProgram(const std::vector<std::string>& command, const std::string& outputFile) {
  const auto cost = ChildProcess(command, outputFile).Wait();
  if (cost.exitStatus != 0)
    throw std::runtime_error(command.front() + " ended with " + std::to_string(cost.exitStatus) + ": " +
                             TextOf(outputFile));
  return cost;
}

std::string TextOf(const std::string& file) {
  std::ifstream stream(file);
  std::stringstream text;
  text << stream.rdbuf();
  return text.str();
}

}  // namespace benchmarks
