#include "tests/kill/Child.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/inotify.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace kill_test {
namespace {

/// A program that prints nothing for so long hangs.
constexpr std::chrono::minutes kPatience{2};

std::string All(int descriptor) {
  std::string text;
  lseek(descriptor, 0, SEEK_SET);
  char buffer[4096];
  for (ssize_t count; (count = read(descriptor, buffer, sizeof buffer)) > 0;)
    text.append(buffer, static_cast<std::size_t>(count));
  return text;
}

}  // namespace

std::vector<std::string> Ended::Lines() const {
  std::vector<std::string> lines;
  std::istringstream text(output);
  for (std::string line; std::getline(text, line) && !text.eof();) lines.push_back(line);
  return lines;
}

Child::Child(std::vector<std::string> words) {
  int out[2];
  if (pipe2(out, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category(), "no pipe");
  out_ = bench::UniqueFd(out[0]);
  const bench::UniqueFd theirs(out[1]);
  // A file: nobody has to read it while the program runs.
  error_ = bench::UniqueFd(memfd_create("error", MFD_CLOEXEC));
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, theirs.Get(), STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, error_.Get(), STDERR_FILENO);
  std::vector<char*> arguments;
  for (auto& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const int fault = posix_spawn(&process_, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (fault != 0) throw std::system_error(fault, std::generic_category(), words[0]);
}

Child::~Child() {
  if (process_ <= 0) return;
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
}

bool Child::Read(Clock::time_point until, int lines) {
  while (true) {
    if (lines >= 0 && std::count(output_.begin(), output_.end(), '\n') >= lines) return false;
    const auto left = std::chrono::duration_cast<std::chrono::nanoseconds>(until - Clock::now());
    if (left.count() <= 0) return false;
    const timespec wait{left.count() / 1'000'000'000, left.count() % 1'000'000'000};
    pollfd readable{out_.Get(), POLLIN, 0};
    if (ppoll(&readable, 1, &wait, nullptr) <= 0) continue;
    char buffer[4096];
    const auto count = read(out_.Get(), buffer, lines >= 0 ? 64 : sizeof buffer);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return true;
    output_.append(buffer, static_cast<std::size_t>(count));
  }
}

bool Child::ReadUntilTouched(const std::vector<std::string>& folders, int touches) {
  const bench::UniqueFd watch(inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
  for (const auto& folder : folders)
    inotify_add_watch(watch.Get(), folder.c_str(), IN_CREATE | IN_MODIFY | IN_MOVED_TO | IN_CLOSE_WRITE);
  const auto until = Clock::now() + kPatience;
  while (touches > 0 && Clock::now() < until) {
    pollfd readable[] = {{out_.Get(), POLLIN, 0}, {watch.Get(), POLLIN, 0}};
    if (poll(readable, 2, 1000) <= 0) continue;
    alignas(inotify_event) char buffer[4096];
    if (readable[1].revents != 0) {
      const auto count = read(watch.Get(), buffer, sizeof buffer);
      for (ssize_t at = 0; at < count; --touches)
        at += static_cast<ssize_t>(sizeof(inotify_event)) +
              static_cast<ssize_t>(reinterpret_cast<const inotify_event*>(buffer + at)->len);
    } else {
      const auto count = read(out_.Get(), buffer, sizeof buffer);
      if (count == 0) return true;
      if (count > 0) output_.append(buffer, static_cast<std::size_t>(count));
    }
  }
  return false;
}

Ended Child::KilledAt(const Moment& moment) {
  bool over = moment.lines >= 0 && Read(Clock::now() + kPatience, moment.lines);
  if (moment.touches >= 0) over = over || ReadUntilTouched(moment.folders, moment.touches);
  over = over || Read(Clock::now() + moment.delay, -1);
  if (!over) kill(process_, moment.signal);
  return Wait();
}

Ended Child::Finished() { return Wait(); }

Ended Child::Wait() {
  if (!Read(Clock::now() + kPatience, -1))
    throw std::runtime_error("a program hangs; it printed: " + output_);
  int status = 0;
  while (waitpid(process_, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  process_ = -1;
  return {WIFSIGNALED(status), WIFEXITED(status) ? WEXITSTATUS(status) : -1, std::move(output_),
          All(error_.Get())};
}

Ended Run(std::vector<std::string> words) { return Child(std::move(words)).Finished(); }

}  // namespace kill_test
