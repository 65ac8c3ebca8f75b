#include "tests/support/Process.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <system_error>

// Not declared by the headers of Debian 12.
extern "C" {
#include <sys/pidfd.h>
}

namespace support {

namespace {

using host::UniqueFd;

constexpr std::chrono::minutes kPatience(2);

[[noreturn]] void ThrowSystemError(int error, const std::string& what) {
  throw std::system_error(error, std::generic_category(), what);
}

std::array<UniqueFd, 2> MakePipe() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) ThrowSystemError(errno, "pipe");
  return {UniqueFd(ends[0]), UniqueFd(ends[1])};
}

std::vector<char*> Pointers(std::vector<std::string>& words) {
  std::vector<char*> pointers;
  for (auto& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<std::string> EnvironmentWith(const std::map<std::string, std::string>& changes) {
  std::vector<std::string> variables;
  for (char** variable = environ; *variable; ++variable) {
    const std::string text = *variable;
    if (!changes.contains(text.substr(0, text.find('=')))) variables.push_back(text);
  }
  for (const auto& [name, value] : changes)
    if (!value.empty()) variables.push_back(name + "=" + value);
  return variables;
}

/// Actions of posix_spawn in the child before the program starts.
struct SpawnSettings {
  SpawnSettings() {
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;
  ~SpawnSettings() {
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
  }

  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
};

/// Puts the child on a new terminal; returns the other end of it.
UniqueFd UseTerminal(SpawnSettings& settings) {
  UniqueFd terminal(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC));
  char name[64];
  const winsize size{40, 160, 0, 0};
  if (!terminal || grantpt(terminal.Get()) != 0 || unlockpt(terminal.Get()) != 0 ||
      ptsname_r(terminal.Get(), name, sizeof name) != 0 || ioctl(terminal.Get(), TIOCSWINSZ, &size) != 0)
    ThrowSystemError(errno, "pseudo-terminal");
  posix_spawnattr_setflags(&settings.attributes, POSIX_SPAWN_SETSID);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    posix_spawn_file_actions_addopen(&settings.actions, stream, name, O_RDWR, 0);
  return terminal;
}

std::chrono::duration<double> SecondsOf(const timeval& time) {
  return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
}

}  // namespace

Process::Process(std::string program, std::vector<std::string> arguments, const Options& options) {
  SpawnSettings settings;
  std::array<UniqueFd, 2> in, out, error;
  if (options.terminal) {
    out_.from = UseTerminal(settings);
  } else {
    in = MakePipe();
    out = MakePipe();
    error = MakePipe();
    posix_spawn_file_actions_adddup2(&settings.actions, in[0].Get(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&settings.actions, out[1].Get(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&settings.actions, error[1].Get(), STDERR_FILENO);
    in_ = std::move(in[1]);
    out_.from = std::move(out[0]);
    error_.from = std::move(error[0]);
  }
  arguments.insert(arguments.begin(), std::move(program));
  auto variables = EnvironmentWith(options.environment);
  started_ = Clock::now();
  const int failure = posix_spawn(&process_, arguments[0].c_str(), &settings.actions, &settings.attributes,
                                  Pointers(arguments).data(), Pointers(variables).data());
  if (failure == 0) return;
  process_ = -1;
  ThrowSystemError(failure, arguments[0]);
}

Process::~Process() {
  if (process_ <= 0) return;
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
}

void Process::Signal(int signal) const { kill(process_, signal); }

void Process::Type(const std::string& text) const {
  if (write(in_.Get(), text.data(), text.size()) != static_cast<ssize_t>(text.size()))
    throw std::runtime_error("the program takes no input");
}

bool Process::AwaitOutput(const std::string& text, int times) {
  return Await([&] {
    std::size_t at = 0;
    for (int i = 0; i < times; ++i) {
      at = out_.text.find(text, at);
      if (at == std::string::npos) return false;
      at += text.size();
    }
    return true;
  });
}

bool Process::AwaitError(const std::string& text) {
  return Await([&] { return error_.text.find(text) != std::string::npos; });
}

bool Process::Await(const std::function<bool()>& done) {
  const auto end = ReadUntil(done, Clock::now() + kPatience);
  if (end == ReadEnd::kTimeout)
    throw std::runtime_error("a program hangs; it printed: " + out_.text + error_.text);
  return end == ReadEnd::kDone;
}

Process::ReadEnd Process::ReadUntil(const std::function<bool()>& done, Clock::time_point deadline, int wake) {
  while (!done()) {
    if (!out_.from && !error_.from) return ReadEnd::kClosed;
    const auto left = std::chrono::nanoseconds(deadline - Clock::now()).count();
    if (left <= 0) return ReadEnd::kTimeout;
    const timespec wait{left / 1'000'000'000, left % 1'000'000'000};
    pollfd watched[] = {{out_.from.Get(), POLLIN, 0}, {error_.from.Get(), POLLIN, 0}, {wake, POLLIN, 0}};
    if (ppoll(watched, 3, &wait, nullptr) <= 0) continue;
    for (auto* stream : {&out_, &error_}) {
      if (watched[stream == &out_ ? 0 : 1].revents == 0) continue;
      char buffer[4096];
      const auto count = read(stream->from.Get(), buffer, sizeof buffer);
      if (count > 0)
        stream->text.append(buffer, static_cast<std::size_t>(count));
      else if (count == 0 || errno != EINTR)
        stream->from.Reset();
    }
  }
  return ReadEnd::kDone;
}

Finished Process::Wait() {
  Await([] { return false; });
  const UniqueFd end(pidfd_open(process_, 0));
  pollfd ended{end.Get(), POLLIN, 0};
  if (poll(&ended, 1, static_cast<int>(std::chrono::milliseconds(kPatience).count())) == 0)
    throw std::runtime_error("a program does not end; it printed: " + out_.text + error_.text);
  int status = 0;
  rusage used{};
  while (wait4(process_, &status, 0, &used) < 0)
    if (errno != EINTR) ThrowSystemError(errno, "wait4");
  process_ = -1;
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, std::move(out_.text), std::move(error_.text),
          Clock::now() - started_, SecondsOf(used.ru_utime) + SecondsOf(used.ru_stime)};
}

Finished RunWell(const std::string& program, std::vector<std::string> arguments) {
  auto ended = Run(program, std::move(arguments));
  if (ended.status != 0)
    throw std::runtime_error(program + " ended with " + std::to_string(ended.status) + ": " + ended.out +
                             ended.error);
  return ended;
}

}  // namespace support
