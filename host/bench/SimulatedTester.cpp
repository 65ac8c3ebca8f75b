#include "host/bench/SimulatedTester.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <random>
#include <sstream>
#include <system_error>
#include <vector>

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/bench/ProgramFiles.h"

namespace host::bench {

namespace {

constexpr std::chrono::seconds kPatience{10};
constexpr char kReady[] = "keld-sim: ready";

/// An unpredictable path for the link that keld-sim creates and removes.
std::string NewLink() {
  std::error_code none;
  const auto folder = std::filesystem::temp_directory_path(none);
  if (none || access(folder.c_str(), W_OK | X_OK) != 0)
    throw IncompleteError(Tr("the temporary folder is not writable; set TMPDIR to a writable folder"));
  std::random_device random;
  std::ostringstream name;
  name << "orvik-bench-" << std::hex << random() << random();
  return (folder / name.str()).string();
}

[[noreturn]] void Become(const std::vector<std::string>& command, int output, pid_t parent) {
  // The simulator watches its parent too, but only once it runs.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(127);
  // Ctrl-C at the terminal stops the run, which still needs its tester to end the session.
  setpgid(0, 0);
  dup2(output, STDOUT_FILENO);
  dup2(output, STDERR_FILENO);
  std::vector<char*> arguments;
  for (const auto& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  execv(arguments[0], arguments.data());
  _exit(127);
}

}  // namespace

SimulatedTester::SimulatedTester(const std::string& profile, double timeScale) : link_(NewLink()) {
  try {
    Start(profile, timeScale);
    AwaitReady();
  } catch (...) {
    End();
    throw;
  }
}

SimulatedTester::~SimulatedTester() { End(); }

void SimulatedTester::Start(const std::string& profile, double timeScale) {
  std::vector<std::string> command{files::Simulator().string(), "--link",       Device(),
                                   "--exit-with-parent",        "--time-scale", ShortNumber(timeScale)};
  if (!profile.empty()) command.insert(command.end(), {"--profile", profile});
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw IncompleteError(Tr("a pipe could not be created"));
  output_ = UniqueFd(ends[0]);
  const UniqueFd theirs(ends[1]);
  const pid_t self = getpid();
  process_ = fork();
  if (process_ < 0) throw IncompleteError(Tr("a process could not be started"));
  if (process_ == 0) Become(command, theirs.Get(), self);
}

void SimulatedTester::AwaitReady() {
  std::string said;
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (said.find('\n') == std::string::npos || !said.starts_with(kReady)) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    pollfd readable{output_.Get(), POLLIN, 0};
    const int ready = left.count() > 0 ? poll(&readable, 1, static_cast<int>(left.count())) : 0;
    if (ready < 0 && errno == EINTR) continue;
    if (ready <= 0) throw IncompleteError(Tr("the simulated tester is not ready after ten seconds"));
    char buffer[512];
    const auto count = read(output_.Get(), buffer, sizeof buffer);
    if (count > 0) {
      said.append(buffer, static_cast<std::size_t>(count));
      continue;
    }
    if (count < 0 && errno == EINTR) continue;
    if (said.empty()) said = Tr("%%1 cannot be started", {files::Simulator().string()});
    throw InputError(said.substr(0, said.find_last_not_of('\n') + 1));
  }
}

void SimulatedTester::End() {
  if (process_ > 0) {
    kill(process_, SIGTERM);
    int status = 0;
    while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
    }
    process_ = -1;
  }
  // A keld-sim that crashed has not removed it.
  std::error_code gone;
  std::filesystem::remove(link_, gone);
}

}  // namespace host::bench
